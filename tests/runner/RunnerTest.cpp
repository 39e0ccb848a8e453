// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelHarness.h"
#include "PlatformException.h"
#include "SignalLog.h"
#include "SystemLog.h"
#include "veltaTaskContext.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <csignal>
#include <sys/wait.h>

namespace {

class RunnerPanel : public RKTPPRBasePDEcorvel
{
public:
    using RKTPPRBasePDEcorvel::pdeBundle_;
    using RKTPPRBasePDEcorvel::streamERR_;
    using RKTPPRBasePDEcorvel::streamIN_;
    using RKTPPRBasePDEcorvel::task_;
    using RKTPPRBasePDEcorvel::waitForCommandCompletion_;
};

qsizetype openDescriptors()
{
    return QDir(text("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

bool hasChildren()
{
    siginfo_t info = {};
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

/// A panel in a bundle of its own, whose backend behaves as told.
class Run
{
public:
    explicit Run(const char *behaviour, const QString &bundleName = text("Own.bundle"))
        : dialog(Mode::Constraint)
        , bundlePath(folder.filePath(text("PDEs/") + bundleName))
    {
        qputenv("VELTA_BEHAVIOUR", behaviour);
        qputenv("VELTA_INPUT", folder.filePath(text("input")).toLocal8Bit());
        QDir().mkpath(bundlePath + text("/Contents/Linux"));
        QFile info(bundlePath + text("/Contents/Info.json"));
        if (info.open(QIODevice::WriteOnly))
            info.write(R"({"CFBundleIdentifier": "a.b", "CFBundleExecutable": "none"})");
        info.close();
        panel = RKTPPRBasePDEcorvel::make<RunnerPanel>(dialog.callback);
        panel->pdeBundle_ = pdekit::Bundle::open(bundlePath);
        initializeVeltaContext(&context);
        dialog.log.clear();
    }

    void install(const QString &path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile::copy(QStringLiteral(VELTA_PROGRAM), path);
    }
    void installInBundle() { install(bundlePath + text("/Contents/Linux/velta")); }
    QString inBundle() const { return bundlePath + text("/Contents/Linux/velta"); }

    void command(const QByteArray &bytes)
    {
        std::copy(bytes.begin(), bytes.end(), context.command);
        context.commandLength = static_cast<std::uint8_t>(bytes.size());
    }
    int start() { return panel->performUtilityTaskWithVeltaTaskContext(&context); }
    bool isIdle() const { return !panel->streamIN_ && !panel->streamERR_; }
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

} // namespace

class RunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void record();
    void runs_data();
    void runs();
    void everyByteArrives();
    void offlineStopsTheBackend_data();
    void offlineStopsTheBackend();
    void closedInputRaisesNothing();
    void backendIsLookedFor_data();
    void backendIsLookedFor();
    void refusals();
    void silenceAfterOneLine();
    void floods_data();
    void floods();
    void destroyedWhileRunning();
    void launchFails();
};

void RunnerTest::record()
{
    PanelHarness dialog(Mode::Constraint);
    veltaTaskContext_s context = {};
    for (const auto &[length, fits] : {std::pair(1023, true), std::pair(1024, false)}) {
        qputenv("DEVICE_URI", QByteArray(length, 'u'));
        initializeVeltaContext(&context);
        QCOMPARE(context.deviceURIString != nullptr, fits);
        QCOMPARE(qstrlen(context.deviceURIBuffer), size_t(1023));
        destroyVeltaJobContext(&context);
        destroyVeltaJobContext(&context);
    }
    QCOMPARE(dialog.log,
             QStringList{text("inadequate buffersize for device URI; needed 1024 bytes, had only 1024 \n")});
    qputenv("DEVICE_URI", "usb://\xff");
    initializeVeltaContext(&context);
    QVERIFY(!context.deviceURIString);
    qunsetenv("DEVICE_URI");
    char byte = 0;
    context.contextData = g_bytes_new("x", 1);
    context.dataBytes = &byte;
    context.dataLength = 1;
    clearVeltaContextData(&context);
    QVERIFY(!context.contextData && !context.dataBytes && context.dataLength == 0);
    clearVeltaContextData(nullptr);
}

void RunnerTest::runs_data()
{
    QTest::addColumn<bool>("hasCommand");
    QTest::addColumn<QStringList>("errors"); // chunks of standard error, as they are read
    QTest::newRow("reads") << true << QStringList();
    QTest::newRow("both streams") << true << QStringList{text("INFO: ready\n")};
    QTest::newRow("arguments") << false << QStringList{text("[--utility][usb://Own/1][-]")};
    QTest::newRow("ends at once") << false << QStringList();
    QTest::newRow("silent") << false << QStringList();
    QTest::newRow("offline in lower case") << false << QStringList{text("state: +offline-error\n")};
    QTest::newRow("offline in two pieces")
        << false << QStringList({text("STATE: +off"), text("line-error\n")});
    QTest::newRow("closes standard output first") << false << QStringList{text("INFO: late\n")};
    QTest::newRow("floods standard output") << false << QStringList();
}

// After each run: the log exactly, the panel idle, no descriptor and no child left.
void RunnerTest::runs()
{
    QFETCH(bool, hasCommand);
    QFETCH(QStringList, errors);
    Run run(QTest::currentDataTag());
    run.installInBundle();
    run.dialog.printer.deviceUri = pdekit::URLReference(text("usb://Own/1"));
    pdekit::prepareSignalLog();
    const qsizetype descriptors = openDescriptors();
    if (hasCommand)
        run.command("print\n");
    QCOMPARE(run.start(), 0);
    QVERIFY(run.panel->waitForCommandCompletion_);
    QVERIFY(run.panel->streamIN_ && run.panel->streamERR_ && run.panel->task_);
    QTRY_VERIFY_WITH_TIMEOUT(run.isIdle(), 10000);
    QVERIFY(!run.panel->waitForCommandCompletion_);
    QStringList lines = run.launchLines(hasCommand ? 6 : 0);
    for (const QString &error : errors)
        lines << text("backend err = ") + error;
    QCOMPARE(run.dialog.log, lines);
    QTRY_VERIFY(!hasChildren());
    QCOMPARE(openDescriptors(), descriptors);
    if (hasCommand)
        QCOMPARE(run.input(), QByteArray("print\n"));
}

void RunnerTest::everyByteArrives()
{
    Run run("reads");
    run.installInBundle();
    QByteArray bytes;
    for (int i = 255; i > 0; --i)
        bytes.append(static_cast<char>(i));
    run.command(bytes);
    run.context.command[254] = 0;
    bytes[254] = 0;
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY(run.isIdle());
    QCOMPARE(run.input(), bytes);
}

void RunnerTest::offlineStopsTheBackend_data()
{
    QTest::addColumn<int>("interrupts");
    QTest::newRow("offline") << 1;
    QTest::newRow("ignores the first interrupt") << 2;
}

void RunnerTest::offlineStopsTheBackend()
{
    Run run(QTest::currentDataTag());
    run.installInBundle();
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY(run.isIdle());
    QVERIFY(!run.panel->task_);
    QVERIFY(run.dialog.log.constLast().contains(text("STATE: +offline-error")));
    QTRY_VERIFY(!hasChildren());
}

void RunnerTest::closedInputRaisesNothing()
{
    Run run("closes its input");
    run.installInBundle();
    run.command("print\n");
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY(run.isIdle());
    QStringList lines = run.launchLines(6);
    lines << text("caught a signal 13\n");
    QTRY_COMPARE(run.dialog.log, lines);
}

void RunnerTest::backendIsLookedFor_data()
{
    QTest::addColumn<QString>("bundle");
    QTest::addColumn<QString>("backend"); // from the folder
    QTest::addColumn<bool>("isFound");
    QTest::newRow("beside the bundle's folder") << text("Own.bundle") << text("cups/backend/velta") << true;
    QTest::newRow("spaces and letters")
        << QStringLiteral("Größe 9 ✓.bundle") << QStringLiteral("PDEs/Größe 9 ✓.bundle/Contents/Linux/velta")
        << true;
    QTest::newRow("nowhere") << text("Own.bundle") << QString() << false;
}

void RunnerTest::backendIsLookedFor()
{
    QFETCH(QString, bundle);
    QFETCH(QString, backend);
    QFETCH(bool, isFound);
    Run run("descriptors", bundle);
    const QString path = run.folder.filePath(backend.isEmpty() ? text("cups/backend/velta") : backend);
    if (isFound)
        run.install(path);
    else
        QDir().mkpath(run.inBundle()); // a folder is no program
    QCOMPARE(run.start(), isFound ? 0 : 1);
    QCOMPARE(run.dialog.log.constLast(),
             (isFound ? text("Found Executable at %1\n") : text("no executable at %1\n")).arg(path));
    QTRY_VERIFY(run.isIdle());
    if (isFound)
        QCOMPARE(run.dialog.log.constLast(), text("backend err = 0 1 2 clean"));
    else
        QVERIFY(run.panel->waitForCommandCompletion_ && !run.panel->task_);
}

void RunnerTest::refusals()
{
    Run run("silent");
    QCOMPARE(run.panel->performTaskwithVeltaWithArgsAndContext(std::nullopt, &run.context), 1);
    QCOMPARE(run.dialog.log.constLast(), text("error ... passing nil args into -[RKTPPRBasePDEcorvel "
                                              "performTaskwithVeltaWithArgs:andContext:]\n"));
    run.installInBundle();
    QVERIFY(QFile::setPermissions(run.inBundle(), QFile::ReadOwner));
    QCOMPARE(run.start(), 1);
    QCOMPARE(run.dialog.log.constLast(), text("no executable at %1\n").arg(run.inBundle()));
    QVERIFY(QFile::setPermissions(run.inBundle(), QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(run.start(), 0);
    QCOMPARE(run.start(), -1);
    QCOMPARE(run.dialog.log.constLast(),
             text("trying to launch a task with one already in progress ... exiting (-1)\n"));
    QTRY_VERIFY(run.isIdle());
    run.panel->killCurrentTask();
    QVERIFY(!run.panel->task_);
}

// Eleven passes of a second, then two interrupts, which end the backend.
void RunnerTest::silenceAfterOneLine()
{
    Run run("silent after one line");
    run.installInBundle();
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(run.isIdle(), 15000);
    QVERIFY2(timer.elapsed() >= 11000 && timer.elapsed() < 12500,
             qPrintable(QString::number(timer.elapsed())));
    QTRY_VERIFY(!hasChildren());
}

void RunnerTest::floods_data()
{
    QTest::addColumn<qsizetype>("characters"); // that are logged, at least
    QTest::newRow("floods standard error") << qsizetype(2'000'000);
    QTest::newRow("floods until interrupted") << qsizetype(500'000);
}

void RunnerTest::floods()
{
    Run run(QTest::currentDataTag());
    run.installInBundle();
    qsizetype logged = 0;
    const auto sink = pdekit::setSystemLogSink([&logged, &run](const QString &line) {
        if (line.startsWith(text("backend err = ")))
            logged += line.size() - 14;
        if (logged > 500'000 && qgetenv("VELTA_BEHAVIOUR") == "floods until interrupted")
            run.panel->task_->interrupt();
    });
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(run.isIdle(), 60000);
    pdekit::setSystemLogSink(sink);
    QFETCH(qsizetype, characters);
    QVERIFY(logged >= characters);
    QTRY_VERIFY(!hasChildren());
}

// Also while its own wait is on the stack.
void RunnerTest::destroyedWhileRunning()
{
    for (const bool isWaiting : {false, true}) {
        auto run = std::make_unique<Run>("silent after one line");
        run->installInBundle();
        QCOMPARE(run->start(), 0);
        QPointer<RunnerPanel> panel = run->panel.get();
        if (isWaiting) {
            QTimer::singleShot(200, run->panel.get(), [&run] { run->panel.reset(); });
            QTRY_VERIFY(!panel);
        }
        QElapsedTimer timer;
        timer.start();
        run.reset();
        QVERIFY(timer.elapsed() < 2000);
        QVERIFY(!hasChildren());
    }
}

void RunnerTest::launchFails()
{
    Run run("silent");
    QFile broken(run.inBundle());
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("\x7f"
                 "ELF no program");
    broken.close();
    QVERIFY(broken.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY_THROWS_EXCEPTION(pdekit::PlatformException, run.start());
    QTRY_VERIFY(run.isIdle());
}

QTEST_MAIN(RunnerTest)
#include "RunnerTest.moc"
