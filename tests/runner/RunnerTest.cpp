// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RunnerTest.h"
#include "TestMain.h"

#include "BackendRun.h"
#include "PlatformException.h"
#include "Rows.h"
#include "SignalLog.h"

#include <QtTest/QTest>

#include <csignal>
#include <cstring>
#include <limits>

void RunnerTest::record()
{
    PanelHarness dialog(Mode::Constraint);
    veltaTaskContext_s context;
    std::memset(&context, 0x5a, sizeof context);
    qunsetenv("DEVICE_URI");
    initializeVeltaContext(&context);
    QVERIFY(!context.deviceURIString && !context.contextData && !context.dataBytes);
    QCOMPARE(context.dataLength, std::ptrdiff_t(0));
    QCOMPARE(QByteArray(context.command, sizeof context.command), QByteArray(256, '\0'));
    QCOMPARE(context.commandLength, std::uint8_t(0));
    QCOMPARE(QByteArray(context.reservedBuffer, sizeof context.reservedBuffer), QByteArray(256, 'Z'));
    QCOMPARE(context.reservedByte, std::uint8_t('Z'));
    QCOMPARE(QByteArray(context.deviceURIBuffer, sizeof context.deviceURIBuffer), QByteArray(1024, 'Z'));

    for (const auto &[length, fits] : {std::pair(1023, true), std::pair(1024, false)}) {
        const QByteArray uri(length, 'u');
        qputenv("DEVICE_URI", uri);
        initializeVeltaContext(&context);
        QCOMPARE(QByteArray(context.deviceURIString), fits ? uri : QByteArray());
        QCOMPARE(qstrlen(context.deviceURIBuffer), size_t(1023));
        context.dataLength = 7;
        destroyVeltaJobContext(&context);
        destroyVeltaJobContext(&context);
        QVERIFY(!context.deviceURIString && context.dataLength == 7);
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

    bool isReleased = false;
    context.contextData = g_bytes_new_with_free_func(
        "x", 1, [](gpointer flag) { *static_cast<bool *>(flag) = true; }, &isReleased);
    destroyVeltaJobContext(&context);
    QVERIFY(isReleased && !context.contextData);
}

void RunnerTest::runs_data()
{
    // Whether there is a command; the chunks of standard error, as they are read.
    addRows<bool, QStringList>({
        {"reads", true, {}},
        {"both streams", true, {text("INFO: ready\n")}},
        {"arguments", false, {text("[--utility][usb://Own/1][-]")}},
        {"ends at once", false, {}},
        {"silent", false, {}},
        {"offline in lower case", false, {text("state: +offline-error\n")}},
        {"offline in two pieces", false, {text("STATE: +off"), text("line-error\n")}},
        {"does not read", true, {}},
        {"closes standard output first", false, {text("INFO: late\n")}},
        {"closes standard error first", false, {}},
        {"floods standard output", false, {}},
    });
}

// After each run: the log exactly, the panel idle, no descriptor and no child left.
void RunnerTest::runs()
{
    const auto [hasCommand, errors] = row<bool, QStringList>();
    BackendRun run(QTest::currentDataTag());
    run.dialog.printer.deviceUri = pdekit::URLReference(text("usb://Own/1"));
    pdekit::prepareSignalLog();
    const qsizetype descriptors = openDescriptors();
    if (hasCommand)
        run.command("print\n");
    QCOMPARE(run.start(), 0);
    QVERIFY(run.panel->waitForCommandCompletion_);
    QVERIFY(run.panel->streamIN_ && run.panel->streamERR_ && run.panel->task_);
    QTRY_VERIFY_WITH_TIMEOUT(run.isIdle(), 10000);
    QVERIFY(!run.panel->waitForCommandCompletion_ && run.panel->task_);
    QStringList lines = run.launchLines(hasCommand ? 6 : 0);
    for (const QString &error : errors)
        lines << text("backend err = ") + error;
    QCOMPARE(run.dialog.log, lines);
    QTRY_VERIFY(!hasChildren());
    QCOMPARE(openDescriptors(), descriptors);
    if (hasCommand)
        QCOMPARE(run.input(), qstrcmp(QTest::currentDataTag(), "does not read") == 0 ? "" : "print\n");
}

// One stream has ended, the other not: the panel is busy, but no longer waits.
void RunnerTest::drains()
{
    for (const bool outputEnds : {true, false}) {
        BackendRun run(outputEnds ? "closes standard output first" : "closes standard error first");
        QCOMPARE(run.start(), 0);
        const auto &ended = outputEnds ? run.panel->streamIN_ : run.panel->streamERR_;
        const auto &other = outputEnds ? run.panel->streamERR_ : run.panel->streamIN_;
        QTRY_VERIFY(!ended);
        QVERIFY(other && !run.panel->waitForCommandCompletion_);
        QCOMPARE(run.start(), -1);
        QVERIFY(!run.panel->waitForCommandCompletion_);
        QTRY_VERIFY(run.isIdle());
    }
}

// Without a command the child's standard input is the dialog's, here a file.
void RunnerTest::inheritsItsInput()
{
    BackendRun run("tells its input");
    QFile own(run.folder.filePath(text("the dialog's input")));
    QVERIFY(own.open(QIODevice::ReadWrite));
    const pdekit::FileDescriptor before(dup(STDIN_FILENO));
    dup2(own.handle(), STDIN_FILENO);
    const int result = run.start();
    dup2(before.number(), STDIN_FILENO);
    QCOMPARE(result, 0);
    QTRY_VERIFY(run.isIdle());
    QCOMPARE(run.dialog.log.constLast(), text("backend err = ") + own.fileName());
}

// Nothing is written to a backend that has ended within the pause.
void RunnerTest::endsWithinThePause()
{
    BackendRun run("ends at once");
    run.command("print\n");
    const qsizetype descriptors = openDescriptors();
    QVERIFY(run.logsOnceInTime(run.launchLines()));
    QTRY_COMPARE(openDescriptors(), descriptors);
    QVERIFY(!hasChildren());
}

// Ten milliseconds; a launch that a busy machine held up shows nothing, so the shortest of several counts.
void RunnerTest::pausesAfterTheLaunch()
{
    BackendRun run("ends at once");
    qint64 shortest = std::numeric_limits<qint64>::max(); // microseconds
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(run.start(), 0);
        shortest = std::min(shortest, timer.nsecsElapsed() / 1000);
        QTRY_VERIFY(run.isIdle());
    }
    QVERIFY2(shortest >= 10'000, qPrintable(QString::number(shortest)));
}

void RunnerTest::everyByteArrives()
{
    BackendRun run("reads");
    QByteArray bytes;
    for (int i = 255; i > 0; --i)
        bytes.append(static_cast<char>(i));
    run.command(bytes);
    run.context.command[254] = 0;
    bytes[254] = 0;
    run.context.contextData = g_bytes_new("x", 1); // of the command before
    QCOMPARE(run.start(), 0);
    QVERIFY(!run.context.contextData);
    QTRY_VERIFY(run.isIdle());
    QCOMPARE(run.input(), bytes);
}

void RunnerTest::offlineStopsTheBackend_data()
{
    addRows<int>({{"offline", 1}, {"offline in a longer line", 1}, {"offline until the 20th interrupt", 20}});
}

void RunnerTest::offlineStopsTheBackend()
{
    BackendRun run(QTest::currentDataTag());
    QVERIFY(run.runs());
    QVERIFY(!run.panel->task_);
    QVERIFY(run.dialog.log.constLast().contains(text("STATE: +offline-error")));
    QTRY_VERIFY(!hasChildren());
    const auto [interrupts] = row<int>(); // until the backend has ended
    if (interrupts == 1)
        return;
    // What the backend has written when the last one came: a millisecond before each but the first, of which
    // those that came before it was first scheduled count as one.
    bool isNumber = false;
    const double time = run.input().toDouble(&isNumber); // milliseconds
    QVERIFY(isNumber);
    QVERIFY2(time >= interrupts - 2, qPrintable(QString::number(time)));
}

// A backend that no interrupt ends does not hold the dialog for longer than the limit.
void RunnerTest::interruptsEndInTime()
{
    BackendRun run("offline for ever");
    QCOMPARE(run.panel->longestKill_, std::chrono::seconds(5));
    run.panel->longestKill_ = std::chrono::milliseconds(50);
    QCOMPARE(run.start(), 0);
    const pid_t backend = run.panel->task_->processIdentifier();
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(run.isIdle());
    QVERIFY(timer.elapsed() < 2000);
    QVERIFY(!run.panel->task_);
    QCOMPARE(kill(backend, 0), -1);
    QCOMPARE(
        run.dialog.log, run.launchLines()
                            << text("backend err = STATE: +offline-error\n")
                            << text("no interrupt has ended the velta backend within 50 ms; killing it\n"));
}

// The write fails: the signal is logged, the exception dropped.
void RunnerTest::closedInputRaisesNothing()
{
    BackendRun run("closes its input");
    run.command("print\n");
    const QStringList lines = run.launchLines(6) << text("caught a signal 13\n");
    QVERIFY(run.logsOnceInTime(lines));
}

void RunnerTest::backendIsLookedFor_data()
{
    const QString odd = QStringLiteral("Größe 9 ✓.bundle");
    addRows<QString, QString, bool>({
        // the backend from the folder
        {"beside the bundle's folder", text("Own.bundle"), text("cups/backend/velta"), true},
        {"spaces and letters", odd, text("PDEs/%1/Contents/Linux/velta").arg(odd), true},
        {"nowhere", text("Own.bundle"), text("cups/backend/velta"), false},
    });
}

void RunnerTest::backendIsLookedFor()
{
    const auto [bundle, backend, isFound] = row<QString, QString, bool>();
    BackendRun run("descriptors", BackendRun::Installed::Nowhere, bundle);
    const QString path = run.folder.filePath(backend);
    if (isFound)
        run.install(path);
    else
        QDir().mkpath(run.inBundle()); // a folder is not a program
    // The backend does not inherit how the dialog's process handles signals.
    sigset_t mask;
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    sigprocmask(SIG_BLOCK, &blocked, &mask);
    std::signal(SIGTERM, SIG_IGN);
    const auto restore = qScopeGuard([&mask] {
        sigprocmask(SIG_SETMASK, &mask, nullptr);
        std::signal(SIGTERM, SIG_DFL);
    });
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
    BackendRun run("silent");
    QCOMPARE(run.panel->performTaskwithVeltaWithArgsAndContext(std::nullopt, &run.context), 1);
    QCOMPARE(run.dialog.log.constLast(), text("error ... passing nil args into -[RKTPPRBasePDEcorvel "
                                              "performTaskwithVeltaWithArgs:andContext:]\n"));
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

void RunnerTest::launchFails()
{
    BackendRun run("silent", BackendRun::Installed::Nowhere);
    QFile broken(run.inBundle());
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("\x7f"
                 "ELF no program");
    broken.close();
    QVERIFY(broken.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY_THROWS_EXCEPTION(pdekit::PlatformException, run.start());
    QTRY_VERIFY(run.isIdle());
}

// Never more than 1,024 bytes at a time.
void RunnerTest::readsPieces()
{
    BackendRun run("writes 9000 bytes");
    QVERIFY(run.runs());
    QStringList lines = run.launchLines();
    for (const qsizetype size : {1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 808})
        lines << text("backend err = ") + QString(size, u'x');
    QCOMPARE(run.dialog.log, lines);
}

// Its streams have ended, and so has the run. The backend keeps running beside the next one, and is reaped at
// its end.
void RunnerTest::leavesTheLastBackendToItself()
{
    BackendRun run("lives on");
    const qsizetype descriptors = openDescriptors();
    QVERIFY(run.runs());
    const pid_t first = run.panel->task_->processIdentifier();
    QCOMPARE(run.start(), 0);
    QVERIFY(run.panel->task_->processIdentifier() != first);
    QCOMPARE(kill(first, 0), 0);
    QTRY_VERIFY(!hasChildren());
    QVERIFY(run.isIdle());
    QTRY_COMPARE(openDescriptors(), descriptors);
}

CORVEL_WIDGETS_TEST(RunnerTest)
