// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PanelHarness.h"
#include "veltaTaskContext.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <sys/wait.h>

class RunnerPanel : public RKTPPRBasePDEcorvel
{
public:
    using RKTPPRBasePDEcorvel::longestKill_;
    using RKTPPRBasePDEcorvel::pdeBundle_;
    using RKTPPRBasePDEcorvel::streamERR_;
    using RKTPPRBasePDEcorvel::streamIN_;
    using RKTPPRBasePDEcorvel::task_;
    using RKTPPRBasePDEcorvel::waitForCommandCompletion_;

    int passes = 0;          ///< of the event loop, that its waits have begun
    QList<qint64> passTimes; ///< of those that are over, in milliseconds

protected:
    bool runEventLoopOnce() override
    {
        ++passes;
        const QPointer<RunnerPanel> self(this);
        QElapsedTimer timer;
        timer.start();
        const bool hasRun = RKTPPRBasePDEcorvel::runEventLoopOnce();
        if (self)
            passTimes << timer.elapsed();
        return hasRun;
    }
};

/// Of this process.
inline qsizetype openDescriptors()
{
    return QDir(text("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

/// Running, or ended and not reaped.
inline bool hasChildren()
{
    siginfo_t info = {};
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

/// A panel in its own bundle, whose backend behaves as the test has it.
class BackendRun
{
public:
    enum class Installed { InBundle, Nowhere };

    explicit BackendRun(const char *behaviour, Installed installed = Installed::InBundle,
                        const QString &bundleName = text("Own.bundle"))
        : dialog(Mode::Constraint)
        , bundlePath(folder.filePath(text("PDEs/") + bundleName))
    {
        behave(behaviour);
        qputenv("VELTA_INPUT", folder.filePath(text("input")).toLocal8Bit());
        QDir().mkpath(bundlePath + text("/Contents/Linux"));
        panel = RKTPPRBasePDEcorvel::make<RunnerPanel>(dialog.callback);
        panel->pdeBundle_ = emptyBundle(bundlePath, "a.b");
        initializeVeltaContext(&context);
        dialog.log.clear();
        if (installed == Installed::InBundle)
            install(inBundle());
    }

    /// How the backends that start from now on behave.
    static void behave(const char *behaviour) { qputenv("VELTA_BEHAVIOUR", behaviour); }
    void install(const QString &path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile::copy(QStringLiteral(VELTA_PROGRAM), path);
    }
    QString inBundle() const { return bundlePath + text("/Contents/Linux/velta"); }

    void command(const QByteArray &bytes)
    {
        std::copy(bytes.begin(), bytes.end(), context.command);
        context.commandLength = static_cast<std::uint8_t>(bytes.size());
    }
    int start() { return panel->performUtilityTaskWithVeltaTaskContext(&context); }
    /// Whether it starts, and ends.
    bool runs()
    {
        return start() == 0 && QTest::qWaitFor([this] { return isIdle(); }, 10000);
    }
    bool isWaiting() const { return panel->waitForCommandCompletion_ && !isIdle(); }
    bool isIdle() const { return !panel->streamIN_ && !panel->streamERR_; }
    /// Whether a launch succeeds and logs just that. A backend that a busy machine held up for longer than
    /// the pause after the launch is started once more.
    bool logsOnceInTime(const QStringList &lines)
    {
        for (int attempt = 0; attempt < 50; ++attempt) {
            dialog.log.clear();
            if (!runs())
                return false;
            QCoreApplication::processEvents(); // what a signal has logged
            if (dialog.log == lines)
                return true;
        }
        return false;
    }
    QByteArray input() const
    {
        QFile file(folder.filePath(text("input")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The log of a launch, without the lines that come after it.
    QStringList launchLines(int commandLength = 0) const
    {
        QStringList lines = {text("inside performUtilityTaskWithVeltaTaskContext"),
                             text("Inside performTaskwithVeltaWithArgs..."),
                             text("Found Executable at %1\n").arg(inBundle())};
        if (commandLength > 0)
            lines << text("writing %1 bytes to the velta backend.\n").arg(commandLength);
        return lines;
    }

    QTemporaryDir folder;
    PanelHarness dialog;
    QString bundlePath;
    std::unique_ptr<RunnerPanel> panel;
    veltaTaskContext_s context = {};
};
