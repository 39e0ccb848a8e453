// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// A backend's standard error. The first byte counts those that follow it as a script of what comes of the
// passes of the event loop; the rest is what the backend writes.

#include "Fuzzing.h"
#include "SystemLog.h"
#include "runner/ScriptedWaits.h"

#include <algorithm>

namespace {

constexpr qsizetype eventBytes = 1024; // that one event reads at most

QByteArray scriptFrom(const QByteArray &bytes)
{
    QByteArray script;
    for (const char byte : bytes)
        script += std::array{'.', '.', 'e', 'e', '.', 'e', '.', 'E'}.at(static_cast<unsigned char>(byte) % 8);
    return script + 'E';
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0 || size < std::size_t(1) + data[0])
        return 0;
    const QByteArray script = scriptFrom(fuzzing::input(data + 1, data[0]));
    const QByteArray output = fuzzing::input(data + 1 + data[0], size - 1 - data[0]);

    QStringList log;
    pdekit::setSystemLogSink([&log](const QString &line) { log << line; });
    ScriptedPanel panel(script);
    NestedWaits waits{script};
    panel.task_ = std::make_unique<pdekit::ChildProcess>(); // it does not run
    panel.streamERR_ = std::make_unique<pdekit::InputStream>(
        fuzzing::write(fuzzing::folder() + QLatin1String("/error"), output));
    fuzzing::require(panel.streamERR_->open(), "the backend's output can be read");

    QStringList expected;
    bool isOffline = false;
    for (qsizetype at = 0; at <= output.size(); at += eventBytes) {
        const QString read = QString::fromUtf8(output.mid(at, eventBytes));
        if (at < output.size())
            expected << QLatin1String("backend err = ") + read;
        isOffline = isOffline || read.contains(QLatin1String("STATE: +offline-error"));
        panel.streamHandleEvent(panel.streamERR_.get(), pdekit::StreamEventHasBytesAvailable);
        if (!waits.hasEnded)
            waits.wait();
        fuzzing::require(log == expected, "what the backend writes is logged as it is");
        fuzzing::require(!panel.task_ == isOffline,
                         "a printer that is offline ends the task, and nothing else does");
        fuzzing::require(panel.passes == waits.passes && panel.interrupts == waits.interrupts,
                         "events wait as if they were nested");
    }
    panel.streamHandleEvent(panel.streamERR_.get(), pdekit::StreamEventEndEncountered);
    fuzzing::require(!panel.streamERR_ && !panel.waitForCommandCompletion_,
                     "the end of the stream ends the run");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    pdekit::setSystemLogSink([](const QString & /*line*/) {});
    return 0;
}
