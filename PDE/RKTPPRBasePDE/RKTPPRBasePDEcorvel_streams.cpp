// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RKTPPRBasePDEcorvel.h"
#include "SystemLog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <array>
#include <chrono>
#include <unistd.h>

using pdekit::InputStream;

namespace {

constexpr std::size_t readSize = 1024;       // bytes, at most, of one event
constexpr useconds_t interruptPause = 1'000; // microseconds
constexpr std::chrono::milliseconds longestPass(1000);

/// Closes and deletes a stream that may be in the middle of emitting an event.
void closeAndRelease(std::unique_ptr<InputStream> &stream)
{
    if (!stream)
        return;
    stream->close();
    stream->disconnect();
    stream.release()->deleteLater();
}

} // namespace

void RKTPPRBasePDEcorvel::streamHandleEvent(InputStream *stream, quintptr event)
{
    ++streamEvents_;
    if (stream && stream == streamIN_.get())
        streamINHandleEvent(stream, event);
    else if (stream && stream == streamERR_.get())
        streamERRHandleEvent(stream, event);
}

void RKTPPRBasePDEcorvel::bytesAvailableForStreamIN(InputStream *stream)
{
    // The backend's standard output is never interpreted.
    std::array<char, readSize> buffer;
    stream->read(buffer.data(), buffer.size());
}

void RKTPPRBasePDEcorvel::streamINHandleEvent(InputStream *stream, quintptr event)
{
    if (event == pdekit::StreamEventHasBytesAvailable) {
        bytesAvailableForStreamIN(stream);
    } else if (event == pdekit::StreamEventEndEncountered) {
        completeCommand();
        closeAndRelease(streamIN_);
    }
}

void RKTPPRBasePDEcorvel::streamERRHandleEvent(InputStream *stream, quintptr event)
{
    if (event == pdekit::StreamEventHasBytesAvailable) {
        std::array<char, readSize> buffer;
        const std::ptrdiff_t count = stream->read(buffer.data(), buffer.size());
        if (count > 0) {
            const QString text = QString::fromUtf8(buffer.data(), count);
            pdekit::systemLog(QStringLiteral("backend err = %1").arg(text));
            if (text.contains(QLatin1String("STATE: +offline-error")))
                killCurrentTask();
        }
    } else if (event == pdekit::StreamEventEndEncountered) {
        completeCommand();
        closeAndRelease(streamERR_);
    }
    waitForCompletion();
}

// Called at the first end of either stream. The waits end at once, not at the driver's next check below:
// within the same turn of the event loop the next command may be launched, whose waits are different ones.
void RKTPPRBasePDEcorvel::completeCommand()
{
    waitForCommandCompletion_ = false;
    pendingWaits_.clear();
}

// Each standard-error event waits for the command's completion in a loop: at most 11 passes of the event
// loop, each until a stream event or for a second. Events that arrive meanwhile begin waits inside this one.
// Nested on the stack, a backend that writes a line every microsecond would overflow it. So the pending waits
// are kept in a container, and the handler of the first one drives all of them: the innermost makes its
// passes, and when it is over, so is the current pass of the one around it. Order, limits, log and interrupts
// are those of plain nesting.
void RKTPPRBasePDEcorvel::waitForCompletion()
{
    if (!waitForCommandCompletion_)
        return;
    pendingWaits_.begin();
    if (isDrivingWaits_)
        return;
    isDrivingWaits_ = true;
    const QPointer<RKTPPRBasePDEcorvel> self(this);
    while (!pendingWaits_.isEmpty()) {
        const std::uint64_t begunBefore = pendingWaits_.begun();
        const bool hasRun = runEventLoopOnce();
        if (!self)
            return; // the panel was destroyed during the pass
        if (!waitForCommandCompletion_ || !hasRun)
            pendingWaits_.clear();
        if (pendingWaits_.begun() != begunBefore)
            continue; // the new innermost wait comes first
        while (!pendingWaits_.isEmpty() && pendingWaits_.endPass()) {
            interruptBackend();
            interruptBackend();
        }
    }
    isDrivingWaits_ = false;
}

// False when there is no stream. User input is held back meanwhile, since it could lead back here.
bool RKTPPRBasePDEcorvel::runEventLoopOnce()
{
    if (!streamIN_ && !streamERR_)
        return false;
    const QPointer<RKTPPRBasePDEcorvel> self(this);
    const std::uint64_t eventsBefore = streamEvents_;
    QTimer limit;
    limit.setTimerType(Qt::PreciseTimer);
    limit.setSingleShot(true);
    limit.start(longestPass);
    while (self && streamEvents_ == eventsBefore && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
    return true;
}

void RKTPPRBasePDEcorvel::interruptBackend()
{
    if (task_)
        task_->interrupt();
}

void RKTPPRBasePDEcorvel::killCurrentTask()
{
    const QDeadlineTimer end(longestKill_);
    while (task_ && task_->isRunning()) {
        task_->interrupt();
        usleep(interruptPause);
        if (!end.hasExpired())
            continue;
        pdekit::systemLog(
            QStringLiteral("no interrupt has ended the velta backend within %1 ms; killing it\n")
                .arg(longestKill_.count()));
        task_->takeDown(std::chrono::milliseconds(0));
    }
    task_.reset();
}

void RKTPPRBasePDEcorvel::takeDownBackend()
{
    streamIN_.reset();
    streamERR_.reset();
    task_.reset();
}
