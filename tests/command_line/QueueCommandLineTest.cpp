// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrivateCupsd.h"
#include "ProgramRun.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString samplePhoto = QStringLiteral(CORVEL_SAMPLE_PHOTO);

} // namespace

/// corvel-print with a real print server.
class QueueCommandLineTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir home_;
    PrivateCupsd cupsd_;

private Q_SLOTS:
    void initTestCase();
    void listsQueues();
    void printsToTheQueue_data();
    void printsToTheQueue();
    void refusesQueues_data();
    void refusesQueues();
};

void QueueCommandLineTest::initTestCase()
{
    for (const char *name : {"LPDEST", "PRINTER"})
        qunsetenv(name);
    qputenv("HOME", home_.path().toUtf8());
    const QString trouble = cupsd_.start();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    const QByteArray ppd = contentOf(QStringLiteral(CORVEL_PPD));
    QVERIFY(cupsd_.addQueue(u"photo"_s, ppd, {u"-D"_s, u"Photo corner"_s}));
    QVERIFY(cupsd_.addQueue(u"closed"_s, ppd));
    QVERIFY(cupsd_.run(u"cupsreject"_s, {u"closed"_s}));
    QVERIFY(cupsd_.addQueue(u"raw"_s));
    QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
}

void QueueCommandLineTest::listsQueues()
{
    const QByteArray text = runProgram({u"--list-printers"_s}).out;
    QVERIFY(text.startsWith("built-in\tBuilt-in printer (files)\tready\t\n"));
    QVERIFY(text.contains("\nphoto\tPhoto corner\tready\tdefault\n"));
    QVERIFY(text.contains("\nclosed\tclosed\trejects jobs\t\n"));
    QCOMPARE(runProgram({u"--list-printers"_s, u"--json"_s}).json().array().size(), 4);
}

void QueueCommandLineTest::printsToTheQueue_data()
{
    QTest::addColumn<QStringList>("printer");
    QTest::newRow("by its name") << QStringList{u"--printer"_s, u"photo"_s};
    QTest::newRow("default") << QStringList();
}

void QueueCommandLineTest::printsToTheQueue()
{
    QFETCH(QStringList, printer);
    const ProgramRun run = runProgram(printer + QStringList{u"--batch"_s, u"-o"_s, u"Red=12"_s, samplePhoto});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QVERIFY(run.out.startsWith("Sent sample.jpg to photo as job "));
    const int id = run.out.trimmed().split(' ').constLast().toInt();
    QVERIFY(cupsd_.waitForJob(id));
    const RecordedJob job = cupsd_.job(id);
    const QByteArrayList options = job.options.split(' ');
    for (const char *option : {"Red=12", "Green=0", "PageSize=4x6.Fullbleed"})
        QVERIFY2(options.contains(option), job.options.constData());
    QVERIFY(job.document.startsWith("%PDF-"));
}

void QueueCommandLineTest::refusesQueues_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("word");
    QTest::newRow("unknown") << u"nowhere"_s << u"Red=12"_s << u"does not exist"_s;
    QTest::newRow("unknown instance") << u"photo/matte"_s << u"Red=12"_s << u"\"photo/matte\""_s;
    QTest::newRow("without a PPD") << u"raw"_s << u"Red=12"_s << u"PPD"_s;
    QTest::newRow("rejects jobs") << u"closed"_s << u"Red=12"_s << u"does not accept"_s;
    QTest::newRow("choice") << u"photo"_s << u"Red=99"_s << u"-25 to 25"_s;
}

void QueueCommandLineTest::refusesQueues()
{
    QFETCH(QString, queue);
    QFETCH(QString, option);
    QFETCH(QString, word);
    const ProgramRun run =
        runProgram({u"--printer"_s, queue, u"--batch"_s, u"-o"_s, option, samplePhoto}, {}, home_.path());
    const QByteArray wrong = wrongInRefusal(run, 1, {word});
    QVERIFY2(wrong.isEmpty(), wrong.constData());
    QVERIFY2(cupsd_.activeJobs().isEmpty(), cupsd_.activeJobs().constData());
}

QTEST_GUILESS_MAIN(QueueCommandLineTest)
#include "QueueCommandLineTest.moc"
