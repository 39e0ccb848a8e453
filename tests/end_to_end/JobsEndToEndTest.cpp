// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CupsConnection.h"
#include "JobFollowing.h"
#include "JobSubmission.h"
#include "OptionsFetcher.h"
#include "PrivateCupsd.h"
#include "QueueList.h"
#include "QueueRecord.h"
#include "Rows.h"
#include "StateText.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <atomic>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing_support::PrivateCupsd;
using testing_support::smallPpd;

namespace {

PrintJob jobFor(const QString &queue)
{
    PrintJob job;
    job.destination = queue;
    return job;
}

JobDocument document(const QByteArray &bytes = "bytes")
{
    return {bytes, "image/jpeg", u"photo.jpg"_s};
}

Result<int, QueueFault> submit(const QString &queue, const QByteArray &bytes = "bytes",
                               const JobSubmission::Progress &sent = {}, int *cancel = nullptr,
                               std::chrono::milliseconds patience = 30s)
{
    return JobSubmission(sent, cancel, patience).send(jobFor(queue), document(bytes));
}

Result<JobStatus, QueueFault> follow(const QString &queue, int id, const FollowLimits &limits = {},
                                     const std::function<void(const JobStatus &)> &news = {},
                                     int *cancel = nullptr)
{
    CupsConnection connection(5s);
    return followJob(connection, queue, id, limits, news, cancel);
}

/// Larger than every buffer on the way to the server.
QByteArray muchData()
{
    return QByteArray(qsizetype(32) << 20, 'x');
}

} // namespace

/// What becomes of jobs, with a real print server and printers that fail.
class JobsEndToEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir(home_.path()).mkdir(u".cups"_s));
        qputenv("HOME", home_.path().toUtf8());
        const QString trouble = cupsd_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        QVERIFY(cupsd_.addQueue(u"photo"_s, smallPpd()));
        QVERIFY(cupsd_.addQueue(u"odd"_s, smallPpd(), {u"-v"_s, u"scripted:/"_s}));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"odd"_s, u"-c"_s, u"group"_s}));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"group"_s, u"-E"_s}));
    }

    void jobIsFollowedToItsEnd_data()
    {
        using State = JobStatus::State;
        const auto add = rows<QString, QByteArray, State, QString>();
        add("done", u"odd"_s, QByteArray("exit 0"), State::Completed, QString());
        add("done, by a class", u"group"_s, QByteArray("exit 0"), State::Completed, QString());
        add("failed, with words of its own", u"odd"_s,
            QByteArray("printf 'ERROR: Ribbon \\033[1mtorn\\n' >&2; exit 1"), State::Aborted,
            u"Ribbon [1mtorn"_s);
    }

    void jobIsFollowedToItsEnd()
    {
        const auto [queue, backend, state, words] = row<QString, QByteArray, JobStatus::State, QString>();
        // It is seen while it is being printed.
        QVERIFY(cupsd_.setBackendScript("sleep 0.2\n" + backend));
        const auto id = submit(queue);
        QVERIFY2(id, id ? "" : qPrintable(id.failure().text));
        QList<JobStatus::State> states;
        const auto status =
            follow(queue, *id, {}, [&states](const JobStatus &news) { states.append(news.state); });
        QVERIFY2(status, status ? "" : qPrintable(status.failure().text));
        QCOMPARE(status->state, state);
        QVERIFY2(status->detail().contains(words), qPrintable(status->detail()));
        QVERIFY(states.contains(JobStatus::State::Processing));
        QCOMPARE(states.constLast(), status->state);
    }

    void waitingJobIsLeftInTime()
    {
        QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"-r"_s, u"new ribbon on its way"_s, u"photo"_s}));
        const auto id = submit(u"photo"_s);
        QElapsedTimer timer;
        timer.start();
        const auto status = follow(u"photo"_s, *id, {.waiting = 200ms});
        QVERIFY(timer.elapsed() >= 200 && timer.elapsed() < 2000);
        QVERIFY(status && !status->isOver() && status->isWaiting());
        QVERIFY2(status->text().contains(u"printer is stopped"_s), qPrintable(status->text()));
        QVERIFY(cupsd_.run(u"cupsenable"_s, {u"photo"_s}));
        QVERIFY(cupsd_.waitForJob(*id));
    }

    // While it is being sent, and once the server has it.
    void canceledJobs()
    {
        QVERIFY(cupsd_.setBackendScript("exit 0"));
        const auto before = submit(u"odd"_s);
        QVERIFY(before && follow(u"odd"_s, *before));
        QVERIFY(cupsd_.setBackendScript("trap 'exit 0' TERM; sleep 20 & wait"));
        int cancel = 0;
        const auto sent = [&cancel](qint64 done, qint64 total) {
            if (done > total / 2)
                std::atomic_ref(cancel).store(1);
        };
        const auto id = submit(u"odd"_s, muchData(), sent, &cancel);
        QVERIFY(!id);
        QCOMPARE(id.failure().reason, QueueFault::Canceled);

        const auto printing = submit(u"odd"_s);
        QVERIFY(printing);
        QCOMPARE(*printing, *before + 1); // the server has never made a job of it
        cancel = 0;
        const auto left = follow(
            u"odd"_s, *printing, {},
            [&cancel](const JobStatus &news) {
                if (news.state == JobStatus::State::Processing)
                    std::atomic_ref(cancel).store(1);
            },
            &cancel);
        QVERIFY(left && !left->isOver());
        CupsConnection connection(5s);
        const auto canceled = cancelJob(connection, u"odd"_s, *printing);
        QVERIFY(canceled && *canceled);
        const auto end = follow(u"odd"_s, *printing);
        QVERIFY(end);
        QCOMPARE(end->state, JobStatus::State::Canceled);
        const auto again = cancelJob(connection, u"odd"_s, *printing);
        QVERIFY(again && !*again);
    }

    // Whoever must not send it twice has to know.
    void jobThatMayExist_data()
    {
        const auto add = rows<bool, bool, QByteArray, bool>();
        add("the queue rejects it", true, true, QByteArray("bytes"), false);
        add("its owner forbids it", false, false, QByteArray("bytes"), false);
        add("given up half way", false, true, muchData(), false);
        add("given up at its end", false, true, QByteArray("canceled"), false); // canceled by its number
        add("the answer is lost", false, true, QByteArray("bytes"), true);
    }

    void jobThatMayExist()
    {
        const auto [isRejected, isAllowed, bytes, mayExist] = row<bool, bool, QByteArray, bool>();
        const auto before = submit(u"photo"_s);
        QVERIFY(before && cupsd_.waitForJob(*before));
        QVERIFY(cupsd_.run(bytes == "canceled" ? u"cupsdisable"_s : u"cupsenable"_s, {u"photo"_s}));
        QVERIFY(cupsd_.run(isRejected ? u"cupsreject"_s : u"cupsaccept"_s, {u"photo"_s}));
        int cancel = 0;
        int begun = 0;
        const auto sent = [&](qint64 done, qint64 total) {
            if (done == total && bytes != "canceled")
                cupsd_.freeze();
            else if (done > total / 2)
                std::atomic_ref(cancel).store(1);
        };
        JobSubmission submission(sent, &cancel, 500ms);
        submission.onBeginning([&] {
            ++begun;
            return isAllowed;
        });
        const auto id = submission.send(jobFor(u"photo"_s), document(bytes));
        cupsd_.thaw();
        QVERIFY(!id);
        QCOMPARE(begun, isRejected ? 0 : 1);
        QCOMPARE(submission.mayHaveMadeJob(), mayExist);
        QVERIFY(cupsd_.activeJobs().isEmpty() || mayExist);
        QVERIFY(cupsd_.run(u"cupsaccept"_s, {u"photo"_s}) && cupsd_.run(u"cupsenable"_s, {u"photo"_s}));
        const auto after = submit(u"photo"_s);
        QVERIFY(after);
        const bool isMade = mayExist || bytes == "canceled";
        QCOMPARE(*after, *before + (isMade ? 2 : 1));
    }

    // As a backend tells them to its server.
    void suppliesAndReasons()
    {
        const auto odd = [] {
            const auto opened = queueNamed(u"odd"_s, 5s);
            return opened ? opened->queue : Queue();
        };
        QCOMPARE(odd().supplies, QList<Supply>());
        QCOMPARE(suppliesText(odd()), QString());
        QVERIFY(cupsd_.setBackendScript(
            "echo 'ATTR: marker-names=Ribbon,Paper,Waste marker-types=ribbon,unknown,waste-ink "
            "marker-levels=8,-1,95 marker-low-levels=10,10,0 marker-high-levels=100,100,90' >&2\n"
            "echo 'STATE: +media-empty-error,marker-supply-low-warning,corvel-odd-report' >&2\nexit 0"));
        const auto id = submit(u"odd"_s);
        QVERIFY(id && follow(u"odd"_s, *id));
        const Queue queue = odd();
        QCOMPARE(queue.supplies.size(), 3);
        QCOMPARE(queue.supplies.at(0), (Supply{u"Ribbon"_s, 8, true}));
        QCOMPARE(queue.supplies.at(1).level, std::nullopt);
        QVERIFY(queue.supplies.at(2).isLow);
        QVERIFY(suppliesText(queue).startsWith(u"Ribbon 8 % (low), "_s));
        QVERIFY(suppliesText(queue).contains(u"unknown"_s));
        const QString text = stateText(queue);
        for (const QString &words : {u"out of paper"_s, u"ribbon or ink low"_s, u"corvel-odd"_s})
            QVERIFY2(text.contains(words), qPrintable(text));
        // None of it keeps a job away.
        QVERIFY(cupsd_.setBackendScript("echo 'STATE: -media-empty-error' >&2\nexit 0"));
        const auto next = submit(u"odd"_s);
        QVERIFY(next && follow(u"odd"_s, *next));
        QVERIFY(!stateText(odd()).contains(u"out of paper"_s));
    }

    // And one look at the PPD, once no change can hide behind the time of the last one.
    void oneConnectionForAll()
    {
        CupsConnection connection(5s);
        QTRY_VERIFY(queueRecord(connection, u"photo"_s)->unchangedSince);
        const QByteArray look = "GET /printers/photo.ppd";
        const qsizetype before = cupsd_.requests(look);
        JobSubmission submission;
        PrintJob job = jobFor(u"photo"_s);
        job.ppd = smallPpd();
        QVERIFY(submission.send(job, document()));
        QVERIFY(submission.send(job, document()));
        QCOMPARE(cupsd_.requests(look) - before, 1);
        // The server closes it in between.
        QVERIFY(cupsd_.goDown() && cupsd_.comeBack());
        const auto id = submission.send(job, document());
        QVERIFY2(id, id ? "" : qPrintable(id.failure().text));
        // A class does not say when the PPD of its member has changed.
        QVERIFY(!queueRecord(connection, u"group"_s)->unchangedSince);
    }

    void changedPpdIsNoticed()
    {
        JobSubmission submission;
        PrintJob job = jobFor(u"photo"_s);
        job.ppd = smallPpd();
        QVERIFY(submission.send(job, document()));
        QVERIFY(cupsd_.addQueue(u"photo"_s, smallPpd("*% another one\n")));
        const auto id = submission.send(job, document());
        QVERIFY(!id);
        QCOMPARE(id.failure().reason, QueueFault::Changed);
        QVERIFY(cupsd_.addQueue(u"bare"_s));
        PrintJob raw = jobFor(u"bare"_s);
        raw.ppd = QByteArray();
        QVERIFY(submission.send(raw, document()));
        QTRY_COMPARE(cupsd_.activeJobs(), QByteArray());
    }

    void serverStartsAgain()
    {
        QVERIFY(cupsd_.setBackendScript("sleep 0.2\nexit 0"));
        const auto id = submit(u"odd"_s);
        QVERIFY(id);
        QStringList texts;
        bool isBack = false;
        const auto status = follow(u"odd"_s, *id, {}, [&](const JobStatus &news) {
            texts.append(news.text());
            if (news.isServerAway)
                isBack = cupsd_.comeBack();
            else if (news.state == JobStatus::State::Processing && !isBack)
                cupsd_.goDown();
        });
        QVERIFY(isBack);
        QVERIFY2(status, status ? "" : qPrintable(status.failure().text));
        QCOMPARE(status->state, JobStatus::State::Completed);
        QVERIFY2(texts.contains(u"the print server does not answer; asking again"_s),
                 qPrintable(texts.join(u'\n')));
    }

    void serverGoesWhileSending()
    {
        const auto before = submit(u"photo"_s);
        for (const bool isFrozen : {true, false}) {
            const auto sent = [this, isFrozen](qint64 done, qint64 total) {
                if (done > total / 2)
                    isFrozen ? cupsd_.freeze() : cupsd_.stop();
            };
            QElapsedTimer timer;
            timer.start();
            const auto id = submit(u"photo"_s, muchData(), sent, nullptr, isFrozen ? 400ms : 10s);
            const qint64 elapsed = timer.elapsed();
            const bool isKnown = bool(follow(u"photo"_s, 1, {.silent = 200ms, .away = 0ms}));
            cupsd_.thaw();
            QVERIFY(!id && !isKnown && elapsed < 2000);
            QVERIFY2(id.failure().text.contains(u"\"photo\""_s), qPrintable(id.failure().text));
            if (!isFrozen)
                break;
            QCOMPARE(id.failure().reason, QueueFault::TimedOut);
            const auto after = submit(u"photo"_s);
            QVERIFY(before && after);
            QCOMPARE(*after, *before + 1); // the server has never made a job of the other one
        }
    }

private:
    QTemporaryDir home_;
    PrivateCupsd cupsd_;
};

CORVEL_TEST(JobsEndToEndTest)
#include "JobsEndToEndTest.moc"
