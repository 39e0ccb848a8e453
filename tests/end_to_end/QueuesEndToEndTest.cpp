// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobSubmission.h"
#include "Logins.h"
#include "OptionsFetcher.h"
#include "PrivateCupsd.h"
#include "QueueFinder.h"
#include "QueueList.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cups/cups.h>

#include <atomic>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing_support::PrivateCupsd;

Q_DECLARE_METATYPE(QueueFault)

namespace {

const QByteArray finishOption = "*OpenUI *Finish/Finish: PickOne\n*DefaultFinish: Glossy\n"
                                "*Finish Glossy/Glossy: \"\"\n*Finish Matte/Matte: \"\"\n*CloseUI: *Finish\n";

Result<int, QueueFault> submit(const Destination &destination, const JobDocument &document,
                               const QMap<QString, QString> &options = {}, int copies = 1)
{
    PrintJob job;
    job.destination = destination;
    job.options = options;
    job.copies = copies;
    return JobSubmission().send(job, document);
}

QStringList idsOf(const QList<Queue> &queues)
{
    QStringList ids;
    for (const Queue &queue : queues)
        ids.append(queue.id());
    return ids;
}

/// The backend's fifth argument, read as CUPS reads it.
QMap<QString, QString> optionsOf(const QByteArray &argument)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(argument.constData(), 0, &options);
    QMap<QString, QString> map;
    for (int i = 0; i < count; ++i)
        map.insert(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
    cupsFreeOptions(count, options);
    return map;
}

} // namespace

/// Queues, their PPDs and jobs, with a real print server.
class QueuesEndToEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : {"LPDEST", "PRINTER"})
            qunsetenv(name);
        // The home of nobody's lpoptions.
        QVERIFY(QDir(home_.path()).mkdir(u".cups"_s));
        qputenv("HOME", QFile::encodeName(home_.path()));
    }

    void finderSeesServerAndQueuesComeAndGo()
    {
        QueueFinder finder(nullptr, 50ms);
        const QSignalSpy found(&finder, &QueueFinder::queueFound);
        const QSignalSpy removed(&finder, &QueueFinder::queueRemoved);
        const QSignalSpy finished(&finder, &QueueFinder::finished);
        finder.start();
        QTRY_COMPARE(finished.size(), 1);

        const QString trouble = cupsd_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        QVERIFY(cupsd_.addQueue(u"photo"_s, testing_support::smallPpd(finishOption),
                                {u"-D"_s, u"Photo \u202eprinter"_s, u"-L"_s, u"Büro"_s}));
        QTRY_COMPARE(idsOf(finder.queues()), QStringList{u"photo"_s});
        const qsizetype sightings = found.size();
        QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"photo"_s}));
        QTRY_COMPARE(finder.queues().at(0).state, Queue::State::Stopped);
        QVERIFY(found.size() > sightings);
        QVERIFY(cupsd_.run(u"cupsenable"_s, {u"photo"_s}));
        QCOMPARE(removed.size(), 0);

        // The last queue too: an empty server is an answer, not a failure.
        QVERIFY(cupsd_.deleteQueue(u"photo"_s));
        QTRY_COMPARE(removed.size(), 1);
        QCOMPARE(removed.at(0).at(0).toString(), u"photo"_s);
        QCOMPARE(finished.size(), 1);
        QVERIFY(cupsd_.addQueue(u"photo"_s, testing_support::smallPpd(finishOption),
                                {u"-D"_s, u"Photo \u202eprinter"_s, u"-L"_s, u"Büro"_s}));
        QVERIFY(cupsd_.addQueue(u"raw"_s));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-c"_s, u"group"_s}));
        QTRY_COMPARE(finder.queues().size(), 3);
    }

    void queuesAreListedWithWhatTheServerSays()
    {
        const auto listed = listQueues(5s);
        QVERIFY2(listed, listed ? "" : qPrintable(listed.failure().text));
        const QList<Queue> &queues = *listed;
        QCOMPARE(idsOf(queues), (QStringList{u"group"_s, u"photo"_s, u"raw"_s}));
        QVERIFY(queues.at(0).isClass);
        QCOMPARE(queues.at(0).members, QStringList{u"photo"_s});
        const Queue &photo = queues.at(1);
        QCOMPARE(photo.info, u"Photo printer"_s);
        QCOMPARE(photo.location, u"Büro"_s);
        QCOMPARE(photo.makeAndModel, u"Small"_s);
        QCOMPARE(photo.deviceUri, u"recorder:/"_s);
        QCOMPARE(photo.state, Queue::State::Idle);
        QVERIFY(photo.stateReasons.isEmpty());
        QVERIFY(photo.acceptsJobs && !photo.isClass && !photo.isBuiltIn);
        QVERIFY(cupsd_.run(u"cupsreject"_s, {u"raw"_s}));
        QVERIFY(!listQueues(5s)->at(2).acceptsJobs);
        QVERIFY(cupsd_.run(u"cupsaccept"_s, {u"raw"_s}));
    }

    void defaultIsTheUsersOrTheServers()
    {
        const auto chosen = [] {
            return defaultQueue(*listQueues(5s)).value_or(Destination()).id();
        };
        QCOMPARE(chosen(), QString());
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"raw"_s}));
        QCOMPARE(chosen(), u"raw"_s);
        QFile lpoptions(home_.filePath(u".cups/lpoptions"_s));
        QVERIFY(lpoptions.open(QIODevice::WriteOnly));
        // No later job may carry these options: they were not asked for.
        lpoptions.write("Dest photo Stray=1\nDefault photo/borderless Stray=1\n");
        lpoptions.close();
        QCOMPARE(chosen(), u"photo/borderless"_s);
        for (const char *printer : {"photo", "photo/borderless"}) {
            qputenv("PRINTER", printer);
            QCOMPARE(chosen(), QString::fromLatin1(printer));
        }
        qputenv("LPDEST", "group");
        QCOMPARE(chosen(), u"group"_s);
        qunsetenv("LPDEST");
        qunsetenv("PRINTER");
    }

    void ppdIsThatOfTheQueue()
    {
        for (const QString &id : {u"photo"_s, u"photo/borderless"_s, u"group"_s}) {
            const auto opened = queueNamed(id, 5s);
            QVERIFY2(opened, opened ? "" : qPrintable(opened.failure().text));
            QCOMPARE(opened->ppd, testing_support::smallPpd(finishOption));
        }
        const auto raw = queueNamed(u"raw"_s, 5s);
        QVERIFY(raw && !raw->hasPpd);
        const auto gone = queueNamed(u"gone"_s, 5s);
        QVERIFY(!gone);
        QCOMPARE(gone.failure().reason, QueueFault::NotFound);
        QCOMPARE(gone.failure().text,
                 u"The printer \"gone\" does not exist (The printer or class does not exist). "
                 "Choose another one, or add it in the printer settings."_s);
    }

    void fetcherAnnouncesThePpd()
    {
        // What is refused is never announced. The check has all the time that it wants, and no work with what
        // has passed before.
        std::optional<CheckedPpd> passed;
        OptionsFetcher fetcher(nullptr, 2s, [&passed](const QByteArray &ppd, const QString &queue) {
            if (!passed)
                return checkPpd(ppd, queue);
            QThread::msleep(2500);
            const QString text = QStringLiteral("%1 bytes of %2").arg(ppd.size() > 100).arg(queue);
            return Result<CheckedPpd, PpdFault>(Failure<PpdFault>{PpdFault::Harmful, text, {}});
        });
        quint64 number = 0;
        connect(&fetcher, &OptionsFetcher::fetched, this,
                [&](quint64 announced, const FetchedOptions &options) {
                    number = announced;
                    passed = options.ppd;
                });
        const QSignalSpy failed(&fetcher, &OptionsFetcher::failed);
        fetcher.fetch(u"raw"_s);
        const quint64 asked = fetcher.fetch(u"photo"_s);
        QTRY_VERIFY(passed);
        QCOMPARE(number, asked);
        QVERIFY(passed->data().contains("*DefaultFinish: Glossy"));
        const quint64 next = fetcher.fetch(u"gone"_s);
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.at(0).at(0).toULongLong(), next);
        const quint64 known = fetcher.fetch(u"photo"_s, passed);
        QTRY_COMPARE(number, known);
        fetcher.fetch(u"photo"_s);
        QTRY_COMPARE(failed.size(), 2);
        QCOMPARE(failed.at(1).at(2).toString(), u"1 bytes of photo"_s);
        QCOMPARE(number, known);
    }

    // The defaults of a PPD's own options are only in them. One request, and without a PPD they come alone.
    void attributesComeWithThePpd()
    {
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-o"_s, u"Finish-default=Matte"_s}));
        OptionsFetcher fetcher;
        std::optional<FetchedOptions> options;
        connect(&fetcher, &OptionsFetcher::fetched, this,
                [&options](quint64 /*number*/, const FetchedOptions &fetched) { options = fetched; });
        for (const auto &[queue, hasPpd] :
             {std::pair(u"photo"_s, true), {u"group"_s, true}, {u"raw"_s, false}}) {
            const qsizetype before = cupsd_.requests("POST / ");
            options.reset();
            fetcher.fetch(queue);
            QTRY_VERIFY(options);
            QCOMPARE(options->ppd.has_value(), hasPpd);
            QCOMPARE(options->attributes.contains(u"job-hold-until-supported"_s), true);
            QCOMPARE(options->attributes.text(u"Finish-default"_s),
                     queue == u"photo"_s ? std::optional(u"Matte"_s) : std::nullopt);
            QCOMPARE(cupsd_.requests("POST / "), before + 2); // with that for the queue's record
            const auto opened = queueNamed(queue, 5s);
            QVERIFY(opened && opened->attributes.names().size() == options->attributes.names().size());
        }
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-R"_s, u"Finish-default"_s}));
    }

    void fetchesAhead()
    {
        std::atomic<int> arrived = 0;
        OptionsFetcher fetcher(nullptr, 10s, [&arrived](const QByteArray &ppd, const QString &queue) {
            ++arrived;
            return trustPpd(ppd, queue);
        });
        const QSignalSpy fetched(&fetcher, &OptionsFetcher::fetched);
        const QSignalSpy failed(&fetcher, &OptionsFetcher::failed);
        for (const bool waits : {true, false}) {
            fetcher.fetchAhead(u"photo"_s);
            if (waits) {
                QTRY_COMPARE(arrived, 1);
                QTest::qWait(100);
                QCOMPARE(fetched.size(), 0); // nobody has asked for it yet
            }
            const quint64 number = fetcher.fetch(u"photo"_s);
            const int before = arrived;
            QTRY_VERIFY(fetched.size() > 0 && fetched.constLast().at(0).toULongLong() == number);
            QVERIFY(!waits || arrived == before); // was not fetched again
        }
        QCOMPARE(fetched.size(), 2);
        // Asked for once more, it is fetched anew; and a failure that nobody asked for is none.
        fetcher.fetch(u"photo"_s);
        QTRY_COMPARE(fetched.size(), 3);
        QCOMPARE(arrived, 3);
        fetcher.fetchAhead(u"gone"_s);
        QTest::qWait(300);
        QCOMPARE(failed.size(), 0);
        fetcher.fetch(u"gone"_s);
        QTRY_COMPARE(failed.size(), 1);
    }

    void jobArrivesByteForByteWithExactOptions()
    {
        const QMap<QString, QString> options{{u"PageSize"_s, u"w288h432"_s},
                                             {u"Green"_s, u"-5"_s},
                                             {u"Gamma"_s, u"1.00"_s},
                                             {u"Spaces"_s, u" two  words "_s},
                                             {u"Single"_s, u"it's"_s},
                                             {u"Double"_s, u"\"so\""_s},
                                             {u"Quotes"_s, u"'\"' \""_s},
                                             {u"Slashes"_s, u"a\\b\\\\c\\"_s},
                                             {u"Both"_s, u"\\\"\\'"_s},
                                             {u"Braces"_s, u"a{b=c}"_s},
                                             {u"Comma"_s, u"a,b"_s},
                                             {u"Shell"_s, u"$(id);`id`|&<>*"_s},
                                             {u"Long"_s, QString(255, u'x')},
                                             {u"Finish"_s, u"Glänzend 光沢"_s},
                                             {u"On"_s, u"True"_s},
                                             {u"Off"_s, u"false"_s},
                                             {u"NoEdge"_s, u"True"_s},
                                             {u"noise"_s, u"false"_s}};
        QByteArray bytes(200'000, Qt::Uninitialized);
        for (qsizetype i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>((i * 7919) >> 3);
        const auto id = submit(u"photo/borderless"_s, {bytes, "image/jpeg", u"My\nphoto"_s}, options, 3);
        QVERIFY2(id, id ? "" : qPrintable(id.failure().text));
        QVERIFY(cupsd_.waitForJob(*id));
        const auto job = cupsd_.job(*id);
        QVERIFY(job.document == bytes);
        QCOMPARE(job.title, QByteArray("My photo"));
        QCOMPARE(job.copies, QByteArray("3"));
        auto arrived = optionsOf(job.options);
        // What the scheduler itself adds to every job.
        arrived.removeIf([](const std::pair<const QString &, QString &> &option) {
            return option.first.startsWith(u"job-"_s) || option.first.contains(u"time-at-"_s) ||
                   option.first.startsWith(u"document-"_s);
        });
        QCOMPARE(arrived, options);
    }

    // The print server hands it to the backend.
    void printersLoginGoesWithTheJob()
    {
        const QStringList wants = {u"-o"_s, u"auth-info-required=username,password"_s};
        QVERIFY(cupsd_.addQueue(u"locked"_s, testing_support::smallPpd(), wants));
        int asked = 0;
        Logins::ofRun().setAsk([&](const LoginQuestion &question, const int *) -> std::optional<Login> {
            ++asked;
            return question.printer == u"locked"_s ? std::optional<Login>({u"max"_s, u"geh eim"_s})
                                                   : std::nullopt;
        });
        const auto done = qScopeGuard([] { Logins::ofRun().setAsk({}); });
        for (const QString &queue : {u"locked"_s, u"locked"_s, u"photo"_s}) {
            const auto id = submit(queue, {"bytes", "image/jpeg", u"x"_s});
            QVERIFY2(id, id ? "" : qPrintable(id.failure().text));
            QVERIFY(cupsd_.waitForJob(*id));
            const QByteArray environment = cupsd_.job(*id).environment;
            QCOMPARE(environment.contains("\nAUTH_USERNAME=max\n"), queue == u"locked"_s);
            QCOMPARE(environment.contains("\nAUTH_PASSWORD=geh eim\n"), queue == u"locked"_s);
            QVERIFY(!cupsd_.job(*id).options.contains("geh"));
        }
        QCOMPARE(asked, 1);
    }

    void failedSubmissionLeavesNothing_data()
    {
        const auto add = rows<QString, QByteArray, QueueFault, QString>();
        const QByteArray good = "image/jpeg";
        add("queue vanished", u"gone"_s, good, QueueFault::NotFound, u"\"gone\""_s);
        add("queue rejects", u"raw"_s, good, QueueFault::NotAccepting, u"(out of ribbon)"_s);
        add("type refused", u"photo"_s, QByteArray("image/x-nobody"), QueueFault::Failed,
            u"image/x-nobody"_s);
    }

    void failedSubmissionLeavesNothing()
    {
        const auto [queue, type, fault, words] = row<QString, QByteArray, QueueFault, QString>();
        QVERIFY(cupsd_.run(u"cupsreject"_s, {u"-r"_s, u"out of ribbon"_s, u"raw"_s}));
        const auto id = submit(queue, {"bytes", type, u"a.jpg"_s});
        QVERIFY(!id);
        QCOMPARE(id.failure().reason, fault);
        QVERIFY2(id.failure().text.contains(words), qPrintable(id.failure().text));
        QCOMPARE(cupsd_.activeJobs(), QByteArray());
    }

private:
    QTemporaryDir home_;
    PrivateCupsd cupsd_;
};

CORVEL_TEST(QueuesEndToEndTest)
#include "QueuesEndToEndTest.moc"
