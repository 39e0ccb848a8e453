// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CupsConnection.h"
#include "JobFollowing.h"
#include "JobSubmission.h"
#include "Logins.h"
#include "OptionsFetcher.h"
#include "PlainText.h"
#include "PrivateCupsd.h"
#include "QueueFinder.h"
#include "QueueList.h"
#include "Rows.h"
#include "StateText.h"
#include "StubServer.h"
#include "TestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <atomic>
#include <csignal>
#include <thread>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing_support::StubServer;

Q_DECLARE_METATYPE(QueueFault)

namespace {

/// The most memory that the process had resident since resetPeak(), in bytes.
qint64 peak()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    const qsizetype line = text.indexOf("VmHWM:") + 6;
    return text.mid(line, text.indexOf("kB", line) - line).trimmed().toLongLong() * 1024;
}

bool resetPeak()
{
    QFile refs(u"/proc/self/clear_refs"_s);
    return refs.open(QIODevice::WriteOnly) && refs.write("5") == 1;
}

/// What a fetch comes to, when it fails.
Result<CheckedPpd, QueueFault> fetched(std::chrono::milliseconds limit)
{
    OptionsFetcher fetcher(nullptr, limit);
    Failure<QueueFault> failure{QueueFault::Failed, u"nothing has failed"_s, {}};
    QEventLoop loop;
    QObject::connect(&fetcher, &OptionsFetcher::fetched, &loop, &QEventLoop::quit);
    QObject::connect(&fetcher, &OptionsFetcher::failed, &loop,
                     [&](quint64 /*number*/, QueueFault reason, const QString &text) {
                         failure = {reason, text, {}};
                         loop.quit();
                     });
    fetcher.fetch(u"photo"_s);
    loop.exec();
    return failure;
}

Result<int, QueueFault> submit(const QMap<QString, QString> &options = {}, int *cancel = nullptr,
                               std::chrono::milliseconds patience = 30s)
{
    PrintJob job;
    job.destination = u"photo"_s;
    job.options = options;
    return JobSubmission({}, cancel, patience).send(job, {"x", "image/jpeg", u"x"_s});
}

} // namespace

/// Everything that needs no print server, and what becomes of servers that misbehave.
class QueuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlerOfBrokenPipesStaysInForce()
    {
        // libcups would have the signal ignored from its first use on, which is here.
        const auto handler = [](int) {
        };
        struct sigaction installed = {};
        installed.sa_handler = handler;
        sigaction(SIGPIPE, &installed, nullptr);
        QVERIFY(!listQueues(1s));
        struct sigaction found = {};
        sigaction(SIGPIPE, nullptr, &found);
        QVERIFY(found.sa_handler == installed.sa_handler);
    }

    void textFromOutsideIsCleaned_data()
    {
        const auto add = rows<QString, QString>();
        add("plain, with accents", u"Büro (2. OG)"_s, u"Büro (2. OG)"_s);
        add("line breaks and tabs", u"a\r\n\tb"_s, u"a  b"_s);
        add("controls, C0 and C1", u"a\u0007\u001b[1m\u0085\u009bb"_s, u"a[1mb"_s);
        add("writing direction", u"a\u202egpj.\u202c\u2066b\u200f"_s, u"agpj.b"_s);
        add("too long", QString(400, u'x'), QString(299, u'x') + QChar(0x2026));
        add("too long, a pair at the cut", QString(298, u'x') + u"\U0001f5a8yy"_s,
            QString(298, u'x') + QChar(0x2026));
    }

    void textFromOutsideIsCleaned()
    {
        const auto [text, expected] = row<QString, QString>();
        QCOMPARE(plainText(text, shownTextLimit), expected);
    }

    void failuresNameTheQueueAndKeepPlaceholdersApart()
    {
        const QString text = queueFailure(QueueFault::NotFound, u"a%2b"_s, u"Gone\nfor good."_s).text;
        QVERIFY2(text.contains(u"\"a%2b\" does not exist (Gone for good)."_s), qPrintable(text));
    }

    // Control characters, what is too long, and what CUPS takes for something else.
    void unfitOptionIsRefusedBeforeAnythingIsSent()
    {
        for (const auto &[keyword, value] : {std::pair(u"Finish"_s, u"Matte\nStray=1"_s),
                                             {u"Finish"_s, u"\rMatte"_s},
                                             {u"Finish"_s, u"Mat"_s + QChar(0) + u"te"_s},
                                             {u"Finish"_s, u"Matte\u007f"_s},
                                             {u"Finish"_s, u"\u0085"_s},
                                             {u"Finish"_s, u"\u2028"_s},
                                             {u"Finish"_s, QString(128, u'\u00e4')},
                                             {u"Finish"_s, u"{a={b}}"_s},
                                             {u"Fin\nish"_s, u"Matte"_s},
                                             {u"Finish Stray"_s, u"1"_s},
                                             {u"Finish=1"_s, u"1"_s},
                                             {QString(), u"1"_s},
                                             {u"copies"_s, u"2"_s}}) {
            // With a server that is not there: any other outcome would be NoServer.
            const auto job = submit({{keyword, value}});
            QVERIFY2(!job, qPrintable(keyword + value));
            QCOMPARE(job.failure().reason, QueueFault::Refused);
            const QString text = job.failure().text;
            QVERIFY2(text.contains(u'"' + plainText(keyword) + u'"') && !hasControls(text), qPrintable(text));
        }
    }

    void badServerCostsOneSentenceInTime_data()
    {
        const auto add = rows<StubServer::Manner, QueueFault, QString>();
        add("silent", StubServer::Manner::Silent, QueueFault::TimedOut, u"0.3 s"_s);
        add("one byte at a time", StubServer::Manner::Trickling, QueueFault::TimedOut, u"0.3 s"_s);
        add("closes in a PPD", StubServer::Manner::BreakingOff, QueueFault::Failed, u"in the middle"_s);
        add("PPD too large", StubServer::Manner::Overflowing, QueueFault::Failed, u"8 MiB"_s);
    }

    void badServerCostsOneSentenceInTime()
    {
        const auto [manner, fault, reason] = row<StubServer::Manner, QueueFault, QString>();
        const StubServer server(manner, fault == QueueFault::TimedOut ? StubServer::Requests::All
                                                                      : StubServer::Requests::Files);
        const auto limit = fault == QueueFault::TimedOut ? 300ms : 10000ms;
        QVERIFY(resetPeak());
        const qint64 before = peak();
        QElapsedTimer timer;
        timer.start();
        const auto ppd = fetched(limit);
        QVERIFY(timer.elapsed() < limit.count() + 200);
        QVERIFY(peak() - before < qint64(32) * 1024 * 1024);
        QVERIFY(!ppd);
        QCOMPARE(ppd.failure().reason, fault);
        const QString text = ppd.failure().text;
        QVERIFY2(text.contains(u"\"photo\""_s) && text.contains(reason), qPrintable(text));
        if (fault != QueueFault::TimedOut)
            return;
        timer.start();
        QVERIFY(!listQueues(limit));
        QVERIFY(timer.elapsed() < limit.count() + 200);
        timer.start();
        const auto job = submit({}, nullptr, limit);
        QVERIFY(timer.elapsed() < limit.count() + 200);
        QVERIFY(!job);
        QCOMPARE(job.failure().reason, fault);

        FollowLimits limits;
        limits.total = 300ms;
        timer.start();
        CupsConnection connection(10s);
        QVERIFY(!followJob(connection, u"photo"_s, 1, limits));
        QVERIFY(timer.elapsed() < 1500);

        // Given up by another thread while the server keeps it waiting.
        int cancel = 0;
        const int earlier = server.connections();
        std::thread canceller([&] {
            while (server.connections() == earlier)
                std::this_thread::yield();
            std::atomic_ref(cancel).store(1);
        });
        timer.start();
        const auto canceled = submit({}, &cancel, 10s);
        canceller.join();
        QVERIFY(timer.elapsed() < 400);
        QVERIFY(!canceled);
        QCOMPARE(canceled.failure().reason, QueueFault::Canceled);
    }

    // Whatever is asked.
    void hostileAnswersCostLittle()
    {
        using Manner = StubServer::Manner;
        using Requests = StubServer::Requests;
        const auto isRefused = [](const auto &outcome) {
            return !outcome && outcome.failure().text.contains(u"too large or malformed"_s);
        };
        for (const Manner manner :
             {Manner::Nesting, Manner::EndlessValues, Manner::EmptyAttributes, Manner::Separators,
              Manner::EndlessHeaders, Manner::EndlessContinues, Manner::EndlessChunks}) {
            QVERIFY(resetPeak());
            [[maybe_unused]] const qint64 before = peak();
            {
                const StubServer server(manner);
                QVERIFY(isRefused(sweepQueues(10s, nullptr)));
                QVERIFY(isRefused(queueNamed(u"photo"_s, 10s)));
                CupsConnection connection(10s);
                QVERIFY(manner != Manner::Nesting || isRefused(followJob(connection, u"photo"_s, 1, {})));
                QVERIFY(manner != Manner::Nesting || isRefused(cancelJob(connection, u"photo"_s, 1)));
            }
            {
                const StubServer server(manner, Requests::Jobs);
                QVERIFY(isRefused(submit()));
            }
            if (manner == Manner::EndlessHeaders || manner == Manner::EndlessContinues) {
                const StubServer server(manner, Requests::Files);
                QVERIFY(isRefused(fetched(10s)));
            }
#ifndef __SANITIZE_ADDRESS__ // which keeps what was freed
            QVERIFY2(peak() - before < qint64(64) * 1024 * 1024, qPrintable(QString::number(int(manner))));
#endif
        }
    }

    void ppdCountsWithoutAttributes()
    {
        using Manner = StubServer::Manner;
        for (const Manner manner :
             {Manner::Failing, Manner::Nesting, Manner::Trickling, Manner::BreakingOff}) {
            const StubServer server(manner, StubServer::Requests::Attributes);
            OptionsFetcher fetcher(nullptr, 500ms, [](const QByteArray & /*ppd*/, const QString &name) {
                return trustPpd(testing_support::smallPpd(), name);
            });
            std::optional<FetchedOptions> options;
            connect(&fetcher, &OptionsFetcher::fetched, this,
                    [&options](quint64 /*number*/, const FetchedOptions &fetched) { options = fetched; });
            fetcher.fetch(u"photo"_s);
            QTRY_VERIFY(options);
            QVERIFY(options->ppd && options->attributes.isEmpty());
        }
    }

    void answersThatMakeNoSense()
    {
        {
            const StubServer server(StubServer::Manner::JobBelowZero, StubServer::Requests::Jobs);
            const auto job = submit();
            QVERIFY(!job);
            QCOMPARE(job.failure().reason, QueueFault::Unknown);
            QVERIFY2(job.failure().text.contains(u"number"_s), qPrintable(job.failure().text));
        }
        {
            // Whether it has made a job of what it was sent, nobody knows.
            const StubServer server(StubServer::Manner::Trickling, StubServer::Requests::Jobs);
            const auto job = submit({}, nullptr, 300ms);
            QVERIFY(!job);
            QCOMPARE(job.failure().reason, QueueFault::Unknown);
        }
        {
            // Cleaned, "go\tod" would be another queue.
            const StubServer server(StubServer::Manner::OddNames);
            const auto queues = sweepQueues(5s, nullptr);
            QVERIFY2(queues, queues ? "" : qPrintable(queues.failure().text));
            QCOMPARE(queues->size(), 1);
            QCOMPARE(queues->at(0).name, u"good"_s);
            QCOMPARE(queues->at(0).members, QStringList{u"inner"_s});
        }
        // Nothing is asked somewhere else.
        const StubServer server(StubServer::Manner::Redirecting);
        const auto opened = queueNamed(u"photo"_s, 5s);
        QVERIFY(!opened);
        QVERIFY2(opened.failure().text.contains(u"Found"_s), qPrintable(opened.failure().text));
    }

    // On the thread that shows them.
    void answersThatAreLongCostLittleTime()
    {
        const auto timeHere = [] {
            timespec time = {};
            clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
            return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
        };
        {
            const StubServer server(StubServer::Manner::ManyReasons);
            const auto queues = listQueues(10s);
            QVERIFY2(queues, queues ? "" : qPrintable(queues.failure().text));
            const auto start = timeHere();
            const QString text = stateText(queues->at(0));
            QVERIFY(timeHere() - start < 100ms);
            QVERIFY2(text.contains(u"17, 18, 19"_s) && text.size() < 400, qPrintable(text.left(400)));
        }
        const StubServer server(StubServer::Manner::ManyQueues);
        QueueFinder finder(nullptr, 10ms);
        int found = 0;
        connect(&finder, &QueueFinder::queueFound, this, [&found] { ++found; });
        const auto start = timeHere();
        finder.start();
        QTRY_COMPARE_WITH_TIMEOUT(found, 10000, 10000);
        const int before = server.connections();
        QTRY_VERIFY(server.connections() > before + 4); // it has looked again
        finder.stop();
        QVERIFY(timeHere() - start < 1s);
        QCOMPARE(found, 10000);
    }

    void loginsAreAskedFor_data()
    {
        // What a person enters, one after the other; whether all requests want it or only the one for the
        // job, which the server refuses when it has the document; the outcome.
        addRows<QStringList, bool, QString>({
            {"right", {u"geheim"_s}, true, QString()},
            {"after the document", {u"geheim"_s}, false, QString()},
            {"wrong before", {u"x"_s, u""_s, u"geheim"_s}, false, QString()},
            {"wrong three times",
             {u"a"_s, u"b"_s, u"c"_s},
             true,
             u"refused the name or the password 3 times"_s},
            {"canceled", {}, true, u"none were entered"_s},
        });
    }

    void loginsAreAskedFor()
    {
        const auto [passwords, isForAll, said] = row<QStringList, bool, QString>();
        const StubServer server(StubServer::Manner::Locked,
                                isForAll ? StubServer::Requests::All : StubServer::Requests::Jobs);
        QList<LoginQuestion> asked;
        Logins::ofRun().setAsk([&, left = passwords](const LoginQuestion &question,
                                                     const int *) mutable -> std::optional<Login> {
            asked += question;
            std::this_thread::sleep_for(400ms); // longer than a server may take
            return left.isEmpty() ? std::nullopt : std::optional<Login>({u"max"_s, left.takeFirst()});
        });
        const auto done = qScopeGuard([] { Logins::ofRun().setAsk({}); });
        const auto id = submit({}, nullptr, 300ms);
        QVERIFY2(id || !said.isEmpty(), id ? "" : qPrintable(id.failure().text));
        QCOMPARE(asked.size(), std::max<qsizetype>(1, passwords.size()));
        QCOMPARE(asked.constFirst().printer, u"photo"_s);
        for (int i = 0; i < asked.size(); ++i)
            QCOMPARE(asked.at(i).isRefused, i > 0);
        if (!said.isEmpty()) {
            QVERIFY(!id);
            QCOMPARE(id.failure().reason, QueueFault::Refused);
            QVERIFY2(id.failure().text.contains(said), qPrintable(id.failure().text));
            QVERIFY(!id.failure().text.contains(u"geheim"_s));
            QVERIFY(listQueues(300ms).failure().reason == QueueFault::Refused);
            QCOMPARE(asked.size(), std::max<qsizetype>(1, passwords.size())); // not again until the next act
            return;
        }
        QCOMPARE(*id, 7);
        // Known from now on in this run.
        QVERIFY(submit({}, nullptr, 300ms));
        QCOMPARE(asked.size(), passwords.size());
    }

    // Nobody has to wait for a question that is given up.
    void loginIsGivenUp()
    {
        const StubServer server(StubServer::Manner::Locked);
        int cancel = 0;
        Logins::ofRun().setAsk([&](const LoginQuestion &, const int *flag) -> std::optional<Login> {
            std::atomic_ref(cancel).store(1);
            return flag == &cancel ? std::nullopt : std::optional<Login>({u"max"_s, u"geheim"_s});
        });
        const auto done = qScopeGuard([] { Logins::ofRun().setAsk({}); });
        const auto id = submit({}, &cancel);
        QVERIFY(!id);
        QCOMPARE(id.failure().reason, QueueFault::Canceled);
    }

    void finderNeverBlocks()
    {
        for (const auto manner : {StubServer::Manner::Silent, StubServer::Manner::Trickling}) {
            const StubServer server(manner);
            QElapsedTimer timer;
            timer.start();
            auto finder = std::make_unique<QueueFinder>();
            const QSignalSpy finished(finder.get(), &QueueFinder::finished);
            finder->start();
            QVERIFY(timer.restart() < 100);
            QTRY_VERIFY(server.connections() > 0); // the worker is in the middle of its wait now
            timer.start();
            finder->stop();
            QVERIFY(timer.restart() < 100);
            finder->start();
            QVERIFY(timer.restart() < 100);
            finder.reset();
            QVERIFY(timer.restart() < 100);
            QTest::qWait(300); // time for a worker that would touch what is gone
            QCOMPARE(finished.size(), 0);
        }
    }

    void onlyTheLatestFetchIsAnnounced()
    {
        OptionsFetcher fetcher(nullptr, 200ms);
        const QSignalSpy failed(&fetcher, &OptionsFetcher::failed);
        // Fails at once, for want of a server: its outcome is under way and must not arrive.
        fetcher.fetch(u"none"_s);
        QTest::qSleep(100);
        const StubServer server(StubServer::Manner::Silent);
        const quint64 first = fetcher.fetch(u"one"_s);
        const quint64 second = fetcher.fetch(u"two"_s);
        QVERIFY(first != second);
        QTRY_COMPARE(failed.size(), 1);
        QTest::qWait(300);
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed.at(0).at(0).toULongLong(), second);
        QVERIFY(failed.at(0).at(2).toString().contains(u"\"two\""_s));
    }

    void noServerIsToldAtOnce()
    {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!listQueues(5s));
        QVERIFY(timer.elapsed() < 100);
        QueueFinder finder(nullptr, 10ms);
        const QSignalSpy finished(&finder, &QueueFinder::finished);
        const QSignalSpy failed(&finder, &QueueFinder::failed);
        timer.start();
        finder.start();
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(timer.elapsed() < 100);
        QTest::qWait(100); // several more looks: each reason is said once
        QCOMPARE(finished.size(), 1);
        QCOMPARE(failed.size(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(u"nothing answers at /nonexistent/cups.sock"_s));

        const auto ppd = fetched(5s);
        QVERIFY(!ppd);
        QCOMPARE(ppd.failure().reason, QueueFault::NoServer);
    }
};

CORVEL_TEST(QueuesTest)
#include "QueuesTest.moc"
