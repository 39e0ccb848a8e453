// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramRun.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <csignal>

using namespace testing_support;
using namespace Qt::StringLiterals;

/// corvel-print when it gets no descriptors, and when it is killed. What it leaves is what was there before,
/// or the whole of what was to be there.
class ProgramFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noDescriptorsLeft();
    void killedWhilePrinting_data();
    void killedWhilePrinting();

private:
    QStringList arguments(const QString &size) const
    {
        return {u"--batch"_s,  u"--overwrite"_s,      u"--printer"_s,
                u"built-in"_s, u"--output"_s,         folder_.filePath(u"out"_s),
                u"-o"_s,       u"PageSize="_s + size, QStringLiteral(CORVEL_SAMPLE_PHOTO)};
    }
    /// The files in the folder by their names: when nothing is in its way, what the run with this size
    /// leaves.
    QMap<QString, QByteArray> left(const QString &size = {}) const
    {
        if (!size.isEmpty() && runProgram(arguments(size)).status != 0)
            return {};
        QMap<QString, QByteArray> files;
        const QDir out(folder_.filePath(u"out"_s));
        for (const QString &name : out.entryList(QDir::Files | QDir::Hidden))
            files.insert(name, contentOf(out.filePath(name)));
        return files;
    }

    QTemporaryDir folder_;
    QMap<QString, QByteArray> old_;
    QMap<QString, QByteArray> new_;
};

void ProgramFaultTest::initTestCase()
{
    new_ = left(u"5x7"_s);
    old_ = left(u"4x6"_s);
    QVERIFY(new_.size() == 2 && old_.keys() == new_.keys());
    QVERIFY(old_.first() != new_.first() && old_.last() != new_.last());
}

void ProgramFaultTest::noDescriptorsLeft()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizer looks at objects through a pipe, and takes every one for broken when it gets none.");
#endif
    int status = 1;
    for (int limit = 3; status != 0; ++limit) {
        const ProgramRun run =
            runInShell(u"unset QT_QPA_PLATFORM; ulimit -n %1; exec \"$@\""_s.arg(limit), arguments(u"5x7"_s));
        status = run.status;
        if (status == 127) // the dynamic linker could not open the program's libraries
            continue;
        const QByteArray wrong = status == 0 ? run.err : wrongInRefusal(run, 1, {});
        QVERIFY2(wrong.isEmpty() && !run.err.contains("\"\"") && !run.err.contains("Success"),
                 wrong.constData());
        // A strings table that could not be read leaves the summary with other names; the page is the same.
        QVERIFY(status == 0 ? left().first() == new_.first() : left() == old_);
        QVERIFY(limit > 3 && limit < 100);
    }
}

void ProgramFaultTest::killedWhilePrinting_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGKILL") << SIGKILL;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void ProgramFaultTest::killedWhilePrinting()
{
    QFETCH(const int, signal);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(left(u"4x6"_s), old_);
    const int duration = int(timer.elapsed()) + 5;
    int hits = 0;
    for (int kill = 0; kill < 12; ++kill) {
        QProcess process;
        process.start(printProgram(), arguments(u"5x7"_s));
        QVERIFY(process.waitForStarted());
        QThread::usleep(static_cast<unsigned long>(QRandomGenerator::global()->bounded(duration * 1000)));
        ::kill(static_cast<pid_t>(process.processId()), signal);
        QVERIFY(process.waitForFinished(20'000));
        hits += process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0;
        const QMap<QString, QByteArray> files = left();
        for (auto old = old_.cbegin(); old != old_.cend(); ++old)
            QVERIFY(files.value(old.key()) == *old || files.value(old.key()) == new_.value(old.key()));
        // What was killed at once may have left something, which the next run takes away.
        QVERIFY(signal == SIGKILL || files.size() == 2);
        QCOMPARE(left(u"4x6"_s), old_);
    }
    QVERIFY(hits > 0);
}

CORVEL_TEST(ProgramFaultTest)
#include "ProgramFaultTest.moc"
