// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "RKTPPRBasePDEcorvel.h"
#include "SystemLog.h"
#include "veltaTaskContext.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <spawn.h>
#include <sys/wait.h>

namespace {

/// The runner alone: without a dialog there is no PPD, which it does not need.
class RunnerPanel : public RKTPPRBasePDEcorvel
{
public:
    explicit RunnerPanel(const QString &bundle) { pdeBundle_ = pdekit::Bundle::open(bundle); }

    void finish() const
    {
        while (streamIN_ || streamERR_)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
};

void spawnAndWait(const QByteArray &program)
{
    QByteArray path = program;
    char *argv[] = {path.data(), nullptr};
    pid_t child = 0;
    int status = 0;
    if (posix_spawn(&child, path.constData(), nullptr, nullptr, argv, environ) != 0 ||
        waitpid(child, &status, 0) != child)
        qFatal("the program was not run");
}

} // namespace

void benchRunner()
{
    const QTemporaryDir folder;
    const QString bundle = folder.filePath(QStringLiteral("Bench.bundle"));
    const QString backend = bundle + QLatin1String("/Contents/Linux/velta");
    QDir().mkpath(bundle + QLatin1String("/Contents/Linux"));
    QFile info(bundle + QLatin1String("/Contents/Info.json"));
    if (!info.open(QIODevice::WriteOnly))
        return;
    info.write(R"({"CFBundleIdentifier": "a.b", "CFBundleExecutable": "none"})");
    info.close();
    QFile::copy(QStringLiteral("/bin/true"), backend);

    const pdekit::LogSink log = pdekit::setSystemLogSink([](const QString &) {});
    RunnerPanel panel(bundle);
    veltaTaskContext_s context = {};
    initializeVeltaContext(&context);
    std::vector<double> launches;
    std::vector<double> bare;
    for (int run = 0; run < 21; ++run) {
        launches.push_back(
            millisecondsOf([&] { panel.performTaskwithVeltaWithArgsAndContext(QStringList(), &context); }));
        panel.finish();
        bare.push_back(millisecondsOf([&] { spawnAndWait(QFile::encodeName(backend)); }));
    }
    pdekit::setSystemLogSink(log);
    const double spawn = median(bare);
    printRow({QStringLiteral("launch of a backend with its pause of 10 ms"),
              median(launches),
              QStringLiteral("posix_spawn"),
              spawn,
              {},
              spawn + 12.0});
}
