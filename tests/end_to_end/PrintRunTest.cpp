// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintRun.h"
#include "PrivateCupsd.h"
#include "RemainingTime.h"
#include "Rows.h"
#include "StubServer.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <atomic>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing_support::PrivateCupsd;
using testing_support::StubServer;

namespace {

/// Lets the event happen when the sheet's job begins to print, or while it is sent.
class Listener : public PrintRunListener
{
public:
    Listener(qsizetype sheet, bool isSending, const std::function<void()> &happen)
        : sheet_(sheet)
        , isSending_(isSending)
        , happen_(happen)
    {
    }

    void sending(qsizetype sheet, const QString & /*name*/, qint64 sent, qint64 /*total*/) override
    {
        if (isSending_ && sheet == sheet_ && sent > 0)
            happen_();
    }
    void printed(const QString & /*sentence*/) override {}
    void skipped(const QString & /*sentence*/) override {}
    void following(qsizetype sheet, const QString & /*name*/, const QString &state) override
    {
        if (!isSending_ && sheet == sheet_ && state == u"printing"_s)
            happen_();
    }

private:
    qsizetype sheet_;
    bool isSending_;
    std::function<void()> happen_;
};

/// Lets the event happen when the second sheet begins.
class SecondSheetListener : public Listener
{
public:
    explicit SecondSheetListener(const std::function<void()> &happen)
        : Listener(-1, false, {})
        , happen_(happen)
    {
    }

    void sending(qsizetype sheet, const QString & /*name*/, qint64 /*sent*/, qint64 /*total*/) override
    {
        if (sheet == 1)
            happen_();
    }

private:
    std::function<void()> happen_;
};

} // namespace

/// What a run of several sheets says was printed and was not, with a real print server.
class PrintRunTest : public QObject
{
    Q_OBJECT

    /// What happens at a sheet of the run.
    enum class Event { Nothing, StopAtOnce, StopAfterSheet, ServerEnds, NameIsTaken };

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("HOME", home_.path().toUtf8());
        const QString trouble = cupsd_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    }

    // With the second of three jobs in the printer.
    void everySheetIsAccountedFor_data()
    {
        const auto add = rows<QByteArray, Event, qsizetype, bool, QString>();
        const QByteArray fine = "exit 0";
        const QByteArray slow = "trap 'exit 0' TERM; sleep 20 & wait";
        const QByteArray some = "sleep 1";
        add("all", fine, Event::Nothing, 0, false, u"3 printed, rest:"_s);
        add("one fails", "exit 1", Event::Nothing, 0, false, u"2 printed, rest: 1"_s);
        add("printer stops", "exit 4", Event::Nothing, 0, false, u"1 printed, 2 waiting, rest:"_s);
        add("stopped at once", slow, Event::StopAtOnce, 1, false, u"1 printed, rest: 1 2"_s);
        add("stopped after the sheet", some, Event::StopAfterSheet, 1, false, u"2 printed, rest: 2"_s);
        add("stopped at once while it is sent", fine, Event::StopAtOnce, 0, true, u"rest: 0 1 2"_s);
        add("stopped after the sheet while it is sent", fine, Event::StopAfterSheet, 0, true,
            u"1 printed, rest: 1 2"_s);
        add("server ends", some, Event::ServerEnds, 1, false, u"1 printed, 2 unknown, rest:"_s);
    }

    void everySheetIsAccountedFor()
    {
        const auto [second, event, sheet, isSending, expected] =
            row<QByteArray, Event, qsizetype, bool, QString>();
        QVERIFY(cupsd_.addQueue(u"odd"_s, {}, {u"-v"_s, u"scripted:/"_s}));
        int cancel = 0;
        int leave = 0;
        int finish = 0;
        int *const flag = event == Event::StopAtOnce       ? &cancel
                          : event == Event::StopAfterSheet ? &finish
                                                           : nullptr;
        Listener listener(sheet, isSending, [&, flag, event = event] {
            if (flag) {
                std::atomic_ref(*flag).store(1);
                std::atomic_ref(leave).store(1);
            } else if (event == Event::ServerEnds) {
                cupsd_.goDown();
            }
        });
        // The first job is in the printer for long enough that all are sent before it is over.
        QVERIFY(cupsd_.setBackendScript("case $3 in *1) sleep 0.3;; *2) " + second + ";; esac"));
        FollowLimits limits;
        limits.waiting = 300ms;
        limits.away = 200ms;
        PrintRun run(job(), listener, {&cancel, nullptr, &leave, &finish}, limits);
        const PrintOutcome outcome = run.print(3, sheetOf);
        if (event == Event::ServerEnds)
            QVERIFY(cupsd_.comeBack());
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}));
        QCOMPARE(wordsOf(outcome), expected);
        QCOMPARE(outcome.wasStopped, event == Event::StopAtOnce || event == Event::StopAfterSheet);
        QCOMPARE(outcome.failure.isEmpty(),
                 !QByteArray(QTest::currentDataTag()).contains("fails") && event != Event::ServerEnds);
    }

    // Whether it has got the first sheet, nobody knows; nothing is sent after it.
    void serverBreaksOff()
    {
        const StubServer server(StubServer::Manner::BreakingOff, StubServer::Requests::Jobs);
        Listener listener(0, false, {});
        PrintJob onStub = job();
        onStub.ppd = std::nullopt;
        onStub.page = page;
        PrintRun run(onStub, listener);
        const PrintOutcome outcome = run.print(3, sheetOf);
        QVERIFY2(outcome.failure.startsWith(u"It is not known"_s), qPrintable(outcome.failure));
        QCOMPARE(wordsOf(outcome), u"1 unknown, rest: 1 2"_s);
    }

    void copiesOfSheetsMultiplyTheJobs()
    {
        QVERIFY(cupsd_.addQueue(u"odd"_s, {}, {u"-v"_s, u"scripted:/"_s}));
        QVERIFY(cupsd_.setBackendScript("test \"$4\" = 6"));
        Listener listener(-1, false, {});
        PrintJob thrice = job();
        thrice.copies = 3;
        PrintRun run(thrice, listener);
        const PrintOutcome outcome = run.print(1, [](qsizetype index) {
            PrintSheet sheet = sheetOf(index);
            sheet.copies = 2;
            return sheet;
        });
        QCOMPARE(wordsOf(outcome), u"1 printed, rest:"_s);
    }

    // All pages of one PDF are printed, or none.
    void oneDocument_data()
    {
        const auto add = rows<Event, QString>();
        add("all", Event::Nothing, u"rest:"_s);
        add("stopped at once", Event::StopAtOnce, u"rest: 0 1 2"_s);
        add("stopped after the sheet", Event::StopAfterSheet, u"rest: 0 1 2"_s);
        add("another program takes its name", Event::NameIsTaken, u"rest: 0 1 2"_s);
    }

    void oneDocument()
    {
        const auto [event, rest] = row<Event, QString>();
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"album.pdf"_s);
        int cancel = 0;
        int finish = 0;
        SecondSheetListener listener([&, event = event] {
            cancel = event == Event::StopAtOnce ? 1 : 0;
            finish = event == Event::StopAfterSheet ? 1 : 0;
            if (event == Event::NameIsTaken)
                QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        });
        PrintJob document = job();
        document.destination = Destination::builtIn();
        document.page = page;
        document.folder = {folder.path(), false, {}, u"album"_s};
        PrintRun run(document, listener, {&cancel, nullptr, nullptr, &finish});
        const PrintOutcome outcome = run.print(3, sheetOf);
        QCOMPARE(wordsOf(outcome), rest);
        const bool isDone = event == Event::Nothing;
        QCOMPARE(outcome.document, isDone ? path : QString());
        QCOMPARE(outcome.done, isDone ? 3 : 0);
        QCOMPARE(outcome.names.size(), isDone ? 3 : 0);
        QCOMPARE(outcome.failure.isEmpty(), event != Event::NameIsTaken);
        QCOMPARE(outcome.wasStopped, event == Event::StopAtOnce || event == Event::StopAfterSheet);
        QCOMPARE(QFileInfo(path).size() > 0, isDone);
    }

    // Nothing is sent before the copies of all sheets are known to be possible.
    void tooManyCopies()
    {
        Listener listener(-1, false, {});
        PrintJob many = job();
        many.copies = 11;
        PrintRun run(many, listener);
        const PrintOutcome outcome = run.print(3, [](qsizetype index) {
            PrintSheet sheet = sheetOf(index);
            sheet.copies = index == 1 ? 910 : 1;
            return sheet;
        });
        QVERIFY2(outcome.failure.startsWith(u"10010 copies of sheet 2 "_s), qPrintable(outcome.failure));
        QCOMPARE(wordsOf(outcome), u"rest: 0 1 2"_s);
    }

    void remainingTime_data()
    {
        using Moments = QList<std::pair<int, int>>; // seconds and sheets that are done by then
        const auto add = rows<Moments, int, QString>();
        add("nothing yet", {}, 9, QString());
        add("one sheet says nothing", {{30, 1}}, 9, QString());
        add("the first is slow", {{60, 1}, {65, 2}}, 8, u"less than a minute"_s);
        add("the first and another are slow", {{60, 1}, {70, 2}, {80, 3}, {140, 4}, {150, 5}}, 24,
            u"about 4 minutes"_s);
        add("noticed together", {{60, 1}, {60, 2}, {60, 3}, {60, 10}}, 100, u"about 10 minutes"_s);
        add("a minute", {{30, 1}, {60, 2}}, 2, u"about 1 minute"_s);
        add("rounded", {{10, 1}, {20, 2}}, 140, u"about 25 minutes"_s);
        add("hours", {{30, 1}, {60, 2}}, 250, u"about 2 hours"_s);
    }

    void remainingTime()
    {
        const auto [moments, left, text] = row<QList<std::pair<int, int>>, int, QString>();
        RemainingTime time;
        for (const auto &[seconds, done] : moments)
            time.note(std::chrono::seconds(seconds), done);
        const auto remaining = time.forSheets(left);
        QString said = remaining ? RemainingTime::text(*remaining) : QString();
        // The program's English is in its catalog.
        said.replace(u"(s)"_s, said.contains(u" 1 "_s) ? QString() : u"s"_s);
        QCOMPARE(said, text);
    }

private:
    static constexpr PageGeometry page{{288, 432}, {0, 0, 288, 432}};

    static PrintJob job()
    {
        PrintJob job;
        job.destination = u"odd"_s;
        job.ppd = QByteArray();
        return job;
    }

    static PrintSheet sheetOf(qsizetype index)
    {
        PrintSheet sheet = PrintSheet::of(*Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO)), page, {});
        sheet.name = u"sheet %1"_s.arg(index + 1);
        return sheet;
    }

    static QString wordsOf(const PrintOutcome &outcome)
    {
        QStringList words;
        const auto add = [&words](const QString &text, qsizetype count) {
            if (count > 0)
                words += text.arg(count);
        };
        add(u"%1 printed"_s, outcome.isFollowed ? outcome.printed.size() : 0);
        add(u"%1 waiting"_s, outcome.waiting.size());
        add(u"%1 unknown"_s, outcome.unknown.size());
        QString rest = u"rest:"_s;
        for (const UnprintedSheet &sheet : outcome.unprinted)
            rest += u" %1"_s.arg(sheet.index);
        return (words << rest).join(u", "_s);
    }

    QTemporaryDir home_;
    PrivateCupsd cupsd_;
};

CORVEL_TEST(PrintRunTest)
#include "PrintRunTest.moc"
