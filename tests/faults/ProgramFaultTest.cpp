// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CuttingProxy.h"
#include "Faults.h"
#include "PrivateCupsd.h"
#include "ProgramRun.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <algorithm>
#include <csignal>
#include <functional>
#include <sys/resource.h>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

constexpr int timeLimit = 20'000; // milliseconds that a run may take

/// A run, and how it ended.
struct Ended
{
    ProgramRun run;
    bool isInTime = false;
    bool isKilled = false; ///< by a signal

    /// Empty, or what is wrong with the end of a run that either printed or says in one line why not.
    QByteArray wrong() const
    {
        const bool isSilent = run.err.isEmpty();
        const bool isLine =
            run.err.startsWith("corvel-print: ") && run.err.count('\n') == 1 && run.err.endsWith(".\n");
        // A line that names no thing, or no reason.
        const bool isEmpty = run.err.contains("\"\"") || run.err.contains("Success");
        if (isInTime && !isKilled &&
            ((run.status == 0 && isSilent) || (run.status == 1 && isLine && !isEmpty)))
            return {};
        return (isInTime ? QByteArray("status ") : QByteArray("no end in time, ")) +
               QByteArray::number(run.status) + ": " + run.err;
    }
};

Ended runLimited(const QStringList &arguments, const QMap<QString, QString> &environment,
                 const std::function<void()> &inChild = {},
                 const std::function<void(QProcess &)> &meanwhile = {})
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.remove(u"QT_QPA_PLATFORM"_s);
    for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry)
        variables.insert(entry.key(), entry.value());
    process.setProcessEnvironment(variables);
    if (inChild)
        process.setChildProcessModifier(inChild);
    process.start(printProgram(), arguments);
    if (meanwhile)
        meanwhile(process);
    Ended ended;
    ended.isInTime = process.waitForFinished(timeLimit);
    if (!ended.isInTime) {
        process.kill();
        process.waitForFinished();
    }
    ended.isKilled = process.exitStatus() == QProcess::CrashExit;
    ended.run = {ended.isKilled ? -1 : process.exitCode(), process.readAllStandardOutput(),
                 process.readAllStandardError()};
    return ended;
}

/// Of the server that CUPS_SERVER names: all there ever were, one a line.
QByteArray jobs()
{
    QProcess lpstat;
    lpstat.start(u"lpstat"_s, {u"-W"_s, u"all"_s, u"-o"_s});
    lpstat.waitForFinished();
    return lpstat.readAllStandardOutput();
}

/// The files with the ticket's options in the place of the ticket.
QMap<QString, QByteArray> asJobs(QMap<QString, QByteArray> files)
{
    for (QByteArray &content : files) {
        const QJsonObject ticket = QJsonDocument::fromJson(content).object();
        if (!ticket.isEmpty())
            content = QJsonDocument(ticket.value(u"options"_s).toObject()).toJson();
    }
    return files;
}

/// Whether printing makes the call; saving makes the others.
bool isOfAPrint(const char *call)
{
    return qstrcmp(call, "fchmod") != 0 && qstrcmp(call, "mkdir") != 0;
}

bool isLong()
{
    return qEnvironmentVariableIsSet("CORVEL_FAULTS_LONG");
}

} // namespace

/// corvel-print when the system refuses something at any one moment, when it is killed, and when the print
/// server goes. What it leaves is what was there before, or the whole of what was to be there.
class ProgramFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void callsFail_data();
    void callsFail();
    void noDescriptorsLeft();
    void diskIsFull();
    void keepsEarlierFiles_data();
    void keepsEarlierFiles();
    void killedAtEachCall_data();
    void killedAtEachCall();
    void killedWhilePrinting_data();
    void killedWhilePrinting();
    void serverGoes();

private:
    QStringList arguments(const QString &red) const
    {
        const QString size = red == u"7" ? u"5x7"_s : u"4x6"_s; // so that both files differ
        return {u"--batch"_s,   u"--overwrite"_s,
                u"--printer"_s, u"built-in"_s,
                u"--output"_s,  folder_.filePath(u"out"_s),
                u"-o"_s,        u"PageSize="_s + size,
                u"-o"_s,        u"Red="_s + red,
                photo()};
    }
    QString photo() const { return folder_.filePath(u"photo.jpg"_s); }
    /// The two files by name, and whatever else is in the folder.
    QMap<QString, QByteArray> left() const;
    /// What the run with this choice leaves when nothing is in its way.
    QMap<QString, QByteArray> leftBy(const QString &red);
    bool putOldBack() const;
    /// Empty, or what is wrong with what is there after a run that was to put the new in the place of the
    /// old.
    QByteArray wrongFiles(const Ended &ended) const;
    /// Of a run that was killed: whether each of the two files is the old or the new one.
    bool isEachWhole() const;

    QTemporaryDir folder_;
    QMap<QString, QByteArray> old_;
    QMap<QString, QByteArray> new_;
};

void ProgramFaultTest::initTestCase()
{
    for (const char *name : {"LPDEST", "PRINTER"})
        qunsetenv(name);
    QVERIFY(QFile::copy(QStringLiteral(CORVEL_SAMPLE_PHOTO), photo()));
    new_ = leftBy(u"7"_s);
    old_ = leftBy(u"5"_s);
    QVERIFY(new_.size() == 2 && old_.keys() == new_.keys());
    QVERIFY(old_.first() != new_.first() && old_.last() != new_.last());
}

QMap<QString, QByteArray> ProgramFaultTest::left() const
{
    QMap<QString, QByteArray> files;
    const QDir out(folder_.filePath(u"out"_s));
    for (const QString &name : out.entryList(QDir::Files | QDir::Hidden))
        files.insert(name, contentOf(out.filePath(name)));
    return files;
}

QMap<QString, QByteArray> ProgramFaultTest::leftBy(const QString &red)
{
    const Ended ended = runLimited(arguments(red), {});
    return ended.run.status == 0 ? left() : QMap<QString, QByteArray>();
}

bool ProgramFaultTest::putOldBack() const
{
    bool isDone = true;
    for (auto old = old_.cbegin(); old != old_.cend(); ++old)
        isDone = isDone && store(folder_.filePath(u"out/"_s + old.key()), old.value());
    return isDone;
}

QByteArray ProgramFaultTest::wrongFiles(const Ended &ended) const
{
    const QMap<QString, QByteArray> files = left();
    // A strings table that could not be read leaves the summary with other names; the job is the same.
    const bool isDone = ended.run.status == 0;
    if (isDone ? asJobs(files) == asJobs(new_) : files == old_)
        return {};
    const char *which = files == old_ ? "old" : files == new_ ? "new" : "neither old nor new";
    return QByteArray("status ") + QByteArray::number(ended.run.status) + ", the files are " + which + ": " +
           files.keys().join(u' ').toUtf8() + ' ' + ended.run.err;
}

void ProgramFaultTest::callsFail_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isFirst");
    QByteArray last;
    for (const CallFault &fault : fileFaults()) {
        if (!isOfAPrint(fault.call))
            continue;
        QTest::addRow("%s: %s", fault.call, std::strerror(fault.error))
            << QByteArray(fault.call) << fault.error
            << (fault.call != last && qstrcmp(fault.call, "close") != 0);
        last = fault.call;
    }
    QTest::newRow("pipe2: no descriptors") << QByteArray("pipe2") << EMFILE << true;
}

// Each call in turn, until the run gets through without it.
void ProgramFaultTest::callsFail()
{
    QFETCH(QByteArray, call);
    QFETCH(int, error);
    const QString report = folder_.filePath(u"report"_s);
    int faults = 0;
    // In the short form only an error that matters comes to every call.
    QFETCH(bool, isFirst);
    for (int number = 1;; number += isLong() || isFirst || number < 3 ? 1 : 7) {
        const Fault fault{call, error, number, "/"};
        const Ended ended = runLimited(
            arguments(u"7"_s),
            {{u"LD_PRELOAD"_s, QStringLiteral(CORVEL_PRELOADED_FAULTS)},
             {u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s},
             {u"CORVEL_FAULT"_s, QString::fromUtf8(faultVariable(fault, QFile::encodeName(report)))}});
        const bool isInjected = QFile::remove(report);
        const QByteArray wrong = textOf(fault) + ": " + ended.wrong() + wrongFiles(ended);
        QVERIFY2(ended.wrong().isEmpty() && wrongFiles(ended).isEmpty(), wrong.constData());
        if (!isInjected) {
            QVERIFY(ended.run.status == 0 && putOldBack());
            break;
        }
        ++faults;
        QVERIFY2(error != EINTR || call == "open" || ended.run.status == 0, wrong.constData());
        QVERIFY(ended.run.status != 0 || putOldBack());
    }
    QVERIFY(faults > 0);
    qInfo("%d faults", faults);
}

void ProgramFaultTest::noDescriptorsLeft()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizer looks at objects through a pipe, and takes every one for broken when it gets none.");
#endif
    int failures = 0;
    for (rlim_t limit = 3;; ++limit) {
        const Ended ended = runLimited(arguments(u"7"_s), {}, [limit] {
            const rlimit descriptors = {limit, limit};
            setrlimit(RLIMIT_NOFILE, &descriptors);
        });
        if (ended.run.status == 127) // the dynamic linker could not open the program's libraries
            continue;
        const QByteArray wrong =
            QByteArray::number(qulonglong(limit)) + ": " + ended.wrong() + wrongFiles(ended);
        QVERIFY2(ended.wrong().isEmpty() && wrongFiles(ended).isEmpty(), wrong.constData());
        if (ended.run.status == 0) {
            QVERIFY(putOldBack());
            break;
        }
        ++failures;
        QVERIFY(limit < 100);
    }
    QVERIFY(failures > 0);
    qInfo("%d limits", failures);
}

// The smallest limits hold for the PPD, too, which libcups reads from a file.
void ProgramFaultTest::diskIsFull()
{
    const auto size = static_cast<rlim_t>(new_.first().size());
    for (const rlim_t limit : {rlim_t(0), rlim_t(1), size / 2, size - 1}) {
        const Ended ended = runLimited(arguments(u"7"_s), {}, [limit] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit bytes = {limit, limit};
            setrlimit(RLIMIT_FSIZE, &bytes);
        });
        const QByteArray wrong =
            QByteArray::number(qulonglong(limit)) + ": " + ended.wrong() + wrongFiles(ended);
        QVERIFY2(ended.wrong().isEmpty() && wrongFiles(ended).isEmpty(), wrong.constData());
        QCOMPARE(ended.run.status, 1);
        QVERIFY2(limit <= 1 || ended.run.err.contains("ulimit -f"), ended.run.err.constData());
    }
}

void ProgramFaultTest::keepsEarlierFiles_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name"); // of the new files; empty: there are none
    QTest::newRow("no renaming without replacing") << QByteArray("renameat2") << EINVAL << 1 << u"photo-2"_s;
    QTest::newRow("taken at the last moment") << QByteArray("renameat2") << EEXIST << 2 << u"photo-3"_s;
    QTest::newRow("page") << QByteArray("renameat2") << EIO << 1 << QString();
    QTest::newRow("ticket") << QByteArray("renameat2") << EIO << 2 << QString();
}

// Without being told to overwrite: the new files get another name, both or neither.
void ProgramFaultTest::keepsEarlierFiles()
{
    QFETCH(QByteArray, call);
    QFETCH(int, error);
    QFETCH(int, number);
    QFETCH(QString, name);
    QVERIFY(putOldBack());
    QStringList numbering = arguments(u"7"_s);
    numbering.removeOne(u"--overwrite"_s);
    const QString out = folder_.filePath(u"out"_s);
    const Fault fault{call, error, number, QFile::encodeName(out)};
    const QString report = folder_.filePath(u"report"_s);
    const Ended ended = runLimited(
        numbering, {{u"LD_PRELOAD"_s, QStringLiteral(CORVEL_PRELOADED_FAULTS)},
                    {u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s},
                    {u"CORVEL_FAULT"_s, QString::fromUtf8(faultVariable(fault, QFile::encodeName(report)))}});
    QVERIFY2(ended.wrong().isEmpty() && QFile::remove(report), ended.wrong().constData());
    QCOMPARE(ended.run.status == 0, !name.isEmpty());
    QMap<QString, QByteArray> files = left();
    for (auto old = old_.cbegin(); old != old_.cend(); ++old)
        QCOMPARE(files.take(old.key()), old.value());
    if (!name.isEmpty()) {
        QCOMPARE(files.take(name + u".pdf"_s), new_.first());
        QVERIFY(files.take(name + u".ticket.json"_s).startsWith('{'));
        QVERIFY(QFile::remove(out + u'/' + name + u".pdf"_s) &&
                QFile::remove(out + u'/' + name + u".ticket.json"_s));
    }
    QVERIFY2(files.isEmpty(), qPrintable(files.keys().join(u' ')));
}

bool ProgramFaultTest::isEachWhole() const
{
    const QMap<QString, QByteArray> files = left();
    return std::ranges::all_of(old_.keys(), [&](const QString &name) {
        return files.value(name) == old_.value(name) || files.value(name) == new_.value(name);
    });
}

void ProgramFaultTest::killedAtEachCall_data()
{
    QTest::addColumn<QByteArray>("call");
    for (const char *call : {"write", "fsync", "linkat", "rename"})
        QTest::newRow(call) << QByteArray(call);
}

void ProgramFaultTest::killedAtEachCall()
{
    QFETCH(QByteArray, call);
    const QString out = folder_.filePath(u"out"_s);
    int number = 1;
    for (;; ++number) {
        const Fault fault{call, 0, number, QFile::encodeName(out)};
        const Ended ended =
            runLimited(arguments(u"7"_s), {{u"LD_PRELOAD"_s, QStringLiteral(CORVEL_PRELOADED_FAULTS)},
                                           {u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s},
                                           {u"CORVEL_FAULT"_s, QString::fromUtf8(faultVariable(fault, {}))}});
        QVERIFY2(isEachWhole(), qPrintable(QString::number(number)));
        QCOMPARE(leftBy(u"5"_s), old_); // and nothing else is left
        if (!ended.isKilled)
            break;
    }
    QVERIFY(number > 1);
    qInfo("%d kills", number - 1);
}

void ProgramFaultTest::killedWhilePrinting_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGKILL") << SIGKILL;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void ProgramFaultTest::killedWhilePrinting()
{
    QFETCH(int, signal);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(leftBy(u"5"_s), old_);
    const int duration = int(timer.elapsed()) + 5;
    const int kills = isLong() ? 100 : 12;
    int hits = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const Ended ended = runLimited(arguments(u"7"_s), {}, {}, [signal, duration](QProcess &process) {
            process.waitForStarted();
            QThread::usleep(static_cast<unsigned long>(QRandomGenerator::global()->bounded(duration * 1000)));
            ::kill(static_cast<pid_t>(process.processId()), signal);
        });
        hits += ended.run.status == 0 ? 0 : 1;
        if (!ended.isKilled) {
            const QByteArray wrong = ended.wrong() + wrongFiles(ended);
            QVERIFY2(wrong.isEmpty(), wrong.constData());
        }
        QVERIFY(isEachWhole());
        // What was killed at once may have left something, which the next run takes away.
        if (signal == SIGKILL)
            QCOMPARE(leftBy(u"5"_s), old_);
        QVERIFY2(putOldBack() && left() == old_, qPrintable(left().keys().join(u' ')));
    }
    QVERIFY(hits > 0);
    qInfo("%d of %d ended before their time", hits, kills);
}

void ProgramFaultTest::serverGoes()
{
    PrivateCupsd cupsd;
    const QString trouble = cupsd.start();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    QVERIFY(cupsd.addQueue(u"photo"_s, contentOf(QStringLiteral(CORVEL_PPD))));
    // A server that does not come back is waited for no longer than a job is followed.
    const QStringList toQueue = {u"--batch"_s, u"--printer"_s, u"photo"_s, u"--wait"_s, u"1"_s, photo()};
    int steps = 0;
    for (int cutAt = 1;; ++cutAt) {
        const QByteArray jobsBefore = jobs();
        CuttingProxy proxy(cupsd.socketPath(), cutAt);
        QElapsedTimer timer;
        timer.start();
        const Ended ended = runLimited(toQueue, {{u"CUPS_SERVER"_s, proxy.socketPath()}});
        const QByteArray wrong = QByteArray::number(cutAt) + ": " + ended.wrong() + ' ' + ended.run.err;
        QVERIFY2(ended.wrong().isEmpty(), wrong.constData());
        if (!proxy.hasCut()) {
            QCOMPARE(ended.run.status, 0);
            break;
        }
        ++steps;
        QVERIFY2(timer.elapsed() < 3000, wrong.constData());
        const bool isClear = ended.run.status == 0 || ended.run.err.contains("the connection broke") ||
                             ended.run.err.contains("nothing answers at");
        QVERIFY2(isClear, wrong.constData());
        // Nothing that did not arrive whole is a job.
        const bool isSent = ended.run.out.startsWith("Sent ");
        QVERIFY2(isSent || !proxy.hasCutRequest() || jobs() == jobsBefore, wrong.constData());
    }
    QVERIFY(steps > 5);
    qInfo("%d steps", steps);
}

QTEST_GUILESS_MAIN(ProgramFaultTest)
#include "ProgramFaultTest.moc"
