// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlatformException.h"
#include "RKTPPRBasePDEcorvel.h"
#include "SystemLog.h"
#include "veltaTaskContext.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <cerrno>
#include <unistd.h>

using pdekit::ChildProcess;
using pdekit::InputStream;
using pdekit::Pipe;
using pdekit::systemLog;

namespace {

enum RunResult : std::int32_t {
    runDone = 0,
    runRefused = 1,
    runBusy = -1,
};

#ifdef CORVEL_WRITES_BACKEND_COMMAND
constexpr bool writesCommand = true;
#else
constexpr bool writesCommand = false;
#endif

constexpr useconds_t launchPause = 10'000; // microseconds, for the child to start
const QString backendName = QStringLiteral("velta");

QString parentFolder(const QString &path)
{
    return QFileInfo(path).path();
}

/// The bundle's own backend, or that of the installation that contains the bundle.
QString backendPath(const pdekit::Bundle &bundle)
{
    if (const auto own = bundle.pathForAuxiliaryExecutable(backendName))
        return *own;
    return QDir(parentFolder(parentFolder(bundle.path())))
        .filePath(QLatin1String("cups/backend/") + backendName);
}

bool isExecutableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

/// Writes all bytes. Throws PlatformException when the reader has closed its end or on a system error.
void writeData(const pdekit::FileDescriptor &descriptor, const char *data, std::size_t length)
{
    while (length > 0) {
        const ssize_t written = write(descriptor.number(), data, length);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw pdekit::PlatformException(qt_error_string(errno));
        data += written;
        length -= static_cast<std::size_t>(written);
    }
}

/// Opens a stream with a separate descriptor for the pipe.
std::unique_ptr<InputStream> openStream(const pdekit::FileDescriptor &reading)
{
    auto stream = std::make_unique<InputStream>(QStringLiteral("/dev/fd/%1").arg(reading.number()));
    stream->open();
    return stream;
}

void writeCommand(const pdekit::FileDescriptor &standardInput, const veltaTaskContext_s &context)
{
    const int length = context.commandLength;
    if (static_cast<std::size_t>(length) > sizeof context.command) {
        systemLog(QStringLiteral("Bad printer command size -- exceeds command buffer allocation.\n"));
        return;
    }
    systemLog(QStringLiteral("writing %1 bytes to the velta backend.\n").arg(length));
    if (!writesCommand)
        return;
    try {
        writeData(standardInput, context.command, static_cast<std::size_t>(length));
    } catch (const pdekit::PlatformException &) {
        // A backend that does not read its command reports that on its standard error.
    }
}

} // namespace

std::int32_t RKTPPRBasePDEcorvel::performUtilityTaskWithVeltaTaskContext(veltaTaskContext_s *context)
{
    systemLog(QStringLiteral("inside performUtilityTaskWithVeltaTaskContext"));
    const QStringList arguments = {QStringLiteral("--utility"), printerDeviceURI(), QStringLiteral("-")};
    return performTaskwithVeltaWithArgsAndContext(arguments, context);
}

std::int32_t
RKTPPRBasePDEcorvel::performTaskwithVeltaWithArgsAndContext(const std::optional<QStringList> &arguments,
                                                            veltaTaskContext_s *context)
{
    systemLog(QStringLiteral("Inside performTaskwithVeltaWithArgs..."));
    if (streamERR_ || streamIN_) {
        systemLog(QStringLiteral("trying to launch a task with one already in progress ... exiting (-1)\n"));
        return runBusy;
    }
    waitForCommandCompletion_ = true;
    if (!arguments) {
        systemLog(QStringLiteral("error ... passing nil args into %1\n")
                      .arg(QLatin1String("-[RKTPPRBasePDEcorvel performTaskwithVeltaWithArgs:andContext:]")));
        return runRefused;
    }
    if (context->contextData)
        clearVeltaContextData(context);
    const QString path = backendPath(*pdeBundle_);
    if (!isExecutableFile(path)) {
        systemLog(QStringLiteral("no executable at %1\n").arg(path));
        return runRefused;
    }
    systemLog(QStringLiteral("Found Executable at %1\n").arg(path));

    std::optional<Pipe> errorPipe = Pipe::make();
    std::optional<Pipe> outputPipe = Pipe::make();
    const bool wantsInput = context->commandLength != 0;
    std::optional<Pipe> inputPipe = wantsInput ? Pipe::make() : std::nullopt;
    // The child of an earlier run may still be running, with its streams closed.
    ChildProcess::leaveToItself(std::exchange(task_, std::make_unique<ChildProcess>()));
    if (!outputPipe || (wantsInput && !inputPipe))
        return runDone;

    task_->setLaunchPath(path);
    task_->setArguments(*arguments);
    if (errorPipe)
        task_->setStandardError(std::move(errorPipe->writing));
    task_->setStandardOutput(std::move(outputPipe->writing));
    if (inputPipe)
        task_->setStandardInput(std::move(inputPipe->reading));

    streamIN_ = openStream(outputPipe->reading);
    connect(streamIN_.get(), &InputStream::handleEvent, this,
            [this, stream = streamIN_.get()](quintptr event) { streamHandleEvent(stream, event); });
    if (errorPipe) {
        streamERR_ = openStream(errorPipe->reading);
        connect(streamERR_.get(), &InputStream::handleEvent, this,
                [this, stream = streamERR_.get()](quintptr event) { streamHandleEvent(stream, event); });
    }
    task_->launch();
    usleep(launchPause);
    if (wantsInput && task_->isRunning())
        writeCommand(inputPipe->writing, *context);
    if (inputPipe)
        inputPipe->writing.close();
    return runDone;
}
