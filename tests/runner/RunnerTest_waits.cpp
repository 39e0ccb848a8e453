// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BackendRun.h"
#include "FileDescriptor.h"
#include "InputWindow.h"
#include "Rows.h"
#include "RunnerTest.h"
#include "ScriptedWaits.h"
#include "SystemLog.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <algorithm>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <vector>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr qint64 mostGrowth = 512LL << 20; // bytes; what is freed is kept in quarantine
#else
constexpr qint64 mostGrowth = 8LL << 20; // bytes
#endif

/// Runs something with so many descriptors left to open.
int withDescriptorsLeft(int left, const std::function<int()> &act)
{
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    // The limit is on the number of a descriptor: fill the gaps below it.
    std::vector<pdekit::FileDescriptor> fillers;
    do {
        fillers.emplace_back(open("/dev/null", O_RDONLY | O_CLOEXEC));
    } while (fillers.back().number() < openDescriptors() - 2);
    const rlimit low = {static_cast<rlim_t>(fillers.back().number() + 1 + left), limit.rlim_max};
    setrlimit(RLIMIT_NOFILE, &low);
    const int result = act();
    setrlimit(RLIMIT_NOFILE, &limit);
    return result;
}

/// The process's peak of memory so far, in bytes. Not getrusage(2): its peak may be the parent's.
qint64 peakMemory()
{
    QFile file(text("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray status = file.readAll();
    const qsizetype at = status.indexOf("VmHWM:") + 6;
    return status.mid(at, status.indexOf(" kB", at) - at).trimmed().toLongLong() * 1024;
}

} // namespace

// Eleven passes of a second, then two interrupts, which end the backend.
void RunnerTest::silenceAfterOneLine()
{
    BackendRun run("silent after one line");
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(run.isIdle(), 15000);
    QVERIFY2(timer.elapsed() >= 11000 && timer.elapsed() < 12500,
             qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(run.panel->passes, 11);
    const qint64 shortest = *std::ranges::min_element(run.panel->passTimes);
    QVERIFY2(shortest >= 990 && shortest < 1090, qPrintable(QString::number(shortest)));
    QCOMPARE(run.dialog.log, run.launchLines() << text("backend err = INFO: one\n"));
    QVERIFY(run.panel->task_ && !run.panel->waitForCommandCompletion_);
    QTRY_VERIFY(!hasChildren());
}

void RunnerTest::waitsNest_data()
{
    addRows<QByteArray>({
        // see ScriptedWaits.h
        {"one wait", "..........."},
        {"one inside the first pass", "e....................."},
        {"one inside the last pass", "..........e..........."},
        {"three deep, again and again", QByteArray("ee...e..............e") + QByteArray(60, '.')},
        {"ends inside", "e..e...E"},
    });
}

// The waits kept in a container against waits that nest on the stack: the same passes, the same interrupts.
void RunnerTest::waitsNest()
{
    const auto [passes] = row<QByteArray>();
    NestedWaits nested;
    nested.script = passes;
    nested.wait();
    ScriptedPanel panel(passes);
    panel.streamERRHandleEvent(nullptr, pdekit::StreamEventErrorOccurred);
    QCOMPARE(panel.interrupts, nested.interrupts);
    QCOMPARE(panel.passes, nested.passes);
}

void RunnerTest::waitsEndWithTheirRun_data()
{
    // In milliseconds: how often a caller asks whether the run is over; for how long the main thread is busy
    // before the event reaches it.
    addRows<int, int>({{"asked at every turn", 0, 0},
                       {"asked often", 5, 0},
                       {"asked now and then", 50, 0},
                       {"busy", 0, 100}});
}

// A run that is launched in the turn of the event loop in which the one before ended has none of its waits,
// at whose end an interrupt would come.
void RunnerTest::waitsEndWithTheirRun()
{
    const int interval = std::get<0>(row<int, int>());
    const int busy = std::get<1>(row<int, int>());
    BackendRun run("offline in lower case");
    int passesAtLaunch = 0; // of the next run
    QTimer caller;
    caller.setInterval(interval);
    QObject::connect(&caller, &QTimer::timeout, run.panel.get(), [&] {
        if (run.isWaiting() && busy > 0)
            usleep(static_cast<useconds_t>(busy) * 1000);
        if (!run.isIdle())
            return;
        caller.stop();
        BackendRun::behave("ends at once");
        passesAtLaunch = run.panel->passes;
        QCOMPARE(run.start(), 0);
    });
    for (int i = 0; i < 8; ++i) {
        BackendRun::behave("offline in lower case"); // one line, so one wait
        passesAtLaunch = 0;
        QCOMPARE(run.start(), 0);
        caller.start();
        QTRY_VERIFY(passesAtLaunch > 0 && run.isIdle());
        QCOMPARE(run.panel->passes, passesAtLaunch);
    }
}

// An error event waits like any other one: here, until both streams have ended.
void RunnerTest::errorsWait()
{
    BackendRun run("silent");
    QCOMPARE(run.start(), 0);
    run.panel->streamERRHandleEvent(run.panel->streamERR_.get(), pdekit::StreamEventErrorOccurred);
    QVERIFY(!run.panel->waitForCommandCompletion_);
}

void RunnerTest::errorsReadNothing()
{
    BackendRun run("silent");
    const QString path = run.folder.filePath(text("stream"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
    file.close();
    pdekit::InputStream stream(path);
    QVERIFY(stream.open());
    run.panel->streamINHandleEvent(&stream, pdekit::StreamEventErrorOccurred);
    run.panel->streamERRHandleEvent(&stream, pdekit::StreamEventErrorOccurred);
    char byte = 0;
    QCOMPARE(stream.read(&byte, 1), std::ptrdiff_t(1));
    QCOMPARE(run.dialog.log, QStringList());
}

// While a wait runs the window paints; what the user does comes after it, and nothing of it is lost.
void RunnerTest::waitsPaintAndTakeNoInput()
{
    BackendRun run("silent after one line");
    InputWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(window.paints > 0);
    bool isChecked = false;
    QTimer::singleShot(300, run.panel.get(), [&] {
        QVERIFY(run.isWaiting());
        const int paintsBefore = window.paints;
        window.update();
        window.sendInput();
        QTimer::singleShot(300, run.panel.get(), [&, paintsBefore] {
            isChecked = true;
            QVERIFY(run.isWaiting());
            QVERIFY(window.paints > paintsBefore);
            QCOMPARE(window.inputs, 0);
            run.panel->killCurrentTask();
        });
    });
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY(isChecked && run.isIdle());
    QTRY_COMPARE(window.inputs, 4);
}

void RunnerTest::floods_data()
{
    // Characters that are logged, at least.
    addRows<qsizetype>({{"floods standard error", 2'000'000}, {"floods until interrupted", 500'000}});
}

void RunnerTest::floods()
{
    BackendRun run(QTest::currentDataTag());
    qsizetype logged = 0;
    std::uintptr_t lowest = UINTPTR_MAX; // of the stack
    std::uintptr_t highest = 0;
    const qint64 memory = peakMemory();
    QVERIFY(memory > 0);
    const auto sink = pdekit::setSystemLogSink([&](const QString &line) {
        const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
        lowest = std::min(lowest, here);
        highest = std::max(highest, here);
        if (line.startsWith(text("backend err = ")))
            logged += line.size() - 14;
        if (logged > 500'000 && qgetenv("VELTA_BEHAVIOUR") == "floods until interrupted")
            run.panel->task_->interrupt();
    });
    QCOMPARE(run.start(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(run.isIdle(), 60000);
    pdekit::setSystemLogSink(sink);
    QVERIFY(logged >= std::get<0>(row<qsizetype>()));
    QVERIFY2(highest - lowest < 64 * 1024, qPrintable(QString::number(highest - lowest)));
    const qint64 grown = peakMemory() - memory;
    QVERIFY2(grown < mostGrowth, qPrintable(QString::number(grown)));
    QTRY_VERIFY(!hasChildren());
}

void RunnerTest::destroyedWhileRunning_data()
{
    addRows<const char *, bool>({
        // whether its own wait is on the stack
        {"idle", "silent after one line", false},
        {"waiting", "silent after one line", true},
        {"ignores interrupts", "ignores interrupts", true},
    });
}

void RunnerTest::destroyedWhileRunning()
{
    const auto [backend, isWaiting] = row<const char *, bool>();
    auto run = std::make_unique<BackendRun>(backend);
    QCOMPARE(run->start(), 0);
    QPointer<RunnerPanel> panel = run->panel.get();
    QElapsedTimer timer;
    timer.start();
    if (isWaiting) {
        QTimer::singleShot(200, run->panel.get(), [&run, &timer] {
            timer.restart();
            run->panel.reset();
        });
        QTRY_VERIFY(!panel);
    }
    run.reset();
    QVERIFY(timer.elapsed() < 2000);
    QVERIFY(!hasChildren());
}

void RunnerTest::descriptorsRunOut_data()
{
    // How many descriptors are left, and whether it starts.
    addRows<int, bool>(
        {{"for the pipes", 3, false}, {"for the streams", 4, true}, {"for one of the streams", 5, true}});
}

// The panel comes to rest whatever is missing, and leaves no child and no descriptor behind.
void RunnerTest::descriptorsRunOut()
{
    const auto [left, starts] = row<int, bool>();
    BackendRun run("silent");
    const qsizetype descriptors = openDescriptors();
    QCOMPARE(withDescriptorsLeft(left, [&run] { return run.start(); }), 0);
    QCOMPARE(hasChildren(), starts);
    QTRY_VERIFY(run.isIdle());
    QTRY_VERIFY(!hasChildren());
    QCOMPARE(openDescriptors(), descriptors);
    run.dialog.log.clear();
    QVERIFY(run.runs());
}
