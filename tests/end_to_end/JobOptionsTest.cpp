// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppMessage.h"
#include "JobSubmission.h"
#include "PrivateCupsd.h"
#include "QueueList.h"
#include "Rows.h"
#include "SessionJob.h"
#include "SessionOpening.h"
#include "TestMain.h"
#include "UsedChoices.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <array>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using testing_support::PrivateCupsd;
using testing_support::smallPpd;

namespace {

using Session = std::unique_ptr<DialogSession>;

Session openedQueue(const QString &queue)
{
    const auto opened = queueNamed(queue, 5s);
    if (!opened)
        return nullptr;
    if (!opened->hasPpd)
        return *openRawQueue(opened->queue, PanelMode::Constraint, opened->attributes);
    return *openQueue(opened->queue, *checkPpd(opened->ppd, queue), PanelMode::Constraint,
                      opened->attributes);
}

/// The job's attribute at the server with its type, such as "keyword evening"; empty: none.
QByteArray attributeOf(int job, const char *name)
{
    IppPointer request = ippRequest(IPP_OP_GET_JOB_ATTRIBUTES, {});
    ippDeleteAttribute(request.get(), ippFindAttribute(request.get(), "printer-uri", IPP_TAG_URI));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                 ("ipp://localhost/jobs/" + QByteArray::number(job)).constData());
    cupsSetServer(nullptr);
    const IppPointer answer(cupsDoRequest(CUPS_HTTP_DEFAULT, request.release(), "/"));
    ipp_attribute_t *attribute = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    if (!attribute)
        return {};
    std::array<char, 1024> text = {};
    ippAttributeString(attribute, text.data(), text.size());
    return QByteArray(ippTagString(ippGetValueTag(attribute))) + ' ' + text.data();
}

} // namespace

/// The options of the job itself, with a real print server and beside lp.
class JobOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("HOME", home_.path().toUtf8());
        qputenv("TZ", "XXX-2"); // two hours before UTC
        const QString trouble = cupsd_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        QVERIFY(cupsd_.addQueue(u"photo"_s,
                                smallPpd("*cupsJobAccountId: True\n*cupsJobAccountingUserId: True\n")));
        QVERIFY(cupsd_.addQueue(u"locked"_s, smallPpd("*cupsJobPassword: \"1111\"\n")));
        QVERIFY(cupsd_.addQueue(u"raw"_s));
    }

    void arrivesAsFromLp_data()
    {
        const auto add = rows<QString, QString, QString, QString>();
        add("priority, named", u"job-priority"_s, u"100"_s, u"100"_s, {});
        add("priority", u"job-priority"_s, u"37"_s, u"Custom.37"_s, {});
        add("held for a part of the day", u"job-hold-until"_s, u"evening"_s, u"evening"_s, {});
        add("held until a time", u"job-hold-until"_s, u"17:30"_s, u"Custom.19:30"_s, {});
        add("held beyond midnight", u"job-hold-until"_s, u"23:05:07"_s, u"Custom.01:05:07"_s, {});
        add("one banner page", u"job-sheets"_s, u"standard,none"_s, u"standard"_s, u"none"_s);
        add("two", u"job-sheets"_s, u"none,secret"_s, u"none"_s, u"secret"_s);
        add("account", u"job-account-id"_s, u"Büro 4"_s, u"Custom.Büro 4"_s, {});
        add("account's user", u"job-accounting-user-id"_s, u"None of us"_s, u"Custom.None of us"_s, {});
    }

    void arrivesAsFromLp()
    {
        const auto [key, value, choice, second] = row<QString, QString, QString, QString>();
        for (const QString &queue : {u"photo"_s, u"raw"_s}) {
            const Session session = openedQueue(queue);
            QVERIFY(session);
            if (key.contains(u"account"_s) && queue == u"raw"_s)
                continue;
            const Ruling ruling = session->choose(key, value);
            QVERIFY2(ruling.verdict == Verdict::Accepted, qPrintable(ruling.text));
            const bool isSheets = key == u"job-sheets"_s;
            QCOMPARE(session->chosen(isSheets ? u"job-sheets-start"_s : key), choice);
            QVERIFY(!isSheets || session->chosen(u"job-sheets-end"_s) == second);
            const auto job = jobOf(*session, 1);
            QVERIFY2(job, job ? "" : qPrintable(job.failure().text));
            QCOMPARE(job->job.options.value(key), value);
            QCOMPARE(job->job.options.size(), queue == u"raw"_s ? 1 : 2); // with the page's size
            const int id = send(job->job);
            QVERIFY(id > 0);
            QVERIFY(cupsd_.run(u"lp"_s, {u"-d"_s, queue, u"-o"_s, key + u"='"_s + value + u'\'',
                                         QStringLiteral(CORVEL_SAMPLE_PHOTO)}));
            const QByteArray attribute = attributeOf(id, key.toLatin1().constData());
            QVERIFY(!attribute.isEmpty());
            QCOMPARE(attribute, attributeOf(id + 1, key.toLatin1().constData()));
            // As a preset has it.
            const Session again = openedQueue(queue);
            QCOMPARE(useChoices(*again, job->job.options).leftOut, QStringList());
            QCOMPARE(jobOf(*again, 1)->job.options, job->job.options);
            QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}));
        }
    }

    // What is not chosen is the server's default, and not sent.
    void serversDefaultIsShown()
    {
        const Session before = openedQueue(u"photo"_s);
        QVERIFY(before->choose(u"job-hold-until"_s, u"evening"_s).letsThrough());
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-o"_s, u"job-sheets-default=none,standard"_s,
                                          u"-o"_s, u"job-priority-default=70"_s}));
        const Session session = openedQueue(u"photo"_s);
        QCOMPARE(session->chosen(u"job-sheets-end"_s), u"standard"_s);
        QCOMPARE(session->chosen(u"job-priority"_s), u"Custom.70"_s);
        QCOMPARE(jobOf(*session, 1)->job.options.keys(), QStringList{u"PageSize"_s});
        // An open window follows it where the user has chosen nothing.
        before->setAttributes(queueNamed(u"photo"_s, 5s)->attributes);
        QCOMPARE(before->chosen(u"job-priority"_s), u"Custom.70"_s);
        QCOMPARE(before->chosen(u"job-hold-until"_s), u"evening"_s);
        // The other page is not lost.
        QVERIFY(session->choose(u"job-sheets-start"_s, u"form"_s).letsThrough());
        QCOMPARE(jobOf(*session, 1)->job.options.value(u"job-sheets"_s), u"form,standard"_s);
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-R"_s, u"job-sheets-default"_s, u"-R"_s,
                                          u"job-priority-default"_s}));
    }

    // Every queue's job has a title; the rest is not known without the attributes, and refused.
    void withoutAttributes()
    {
        const auto opened = queueNamed(u"photo"_s, 5s);
        QVERIFY(opened);
        const Session session =
            *openQueue(opened->queue, *checkPpd(opened->ppd, u"photo"_s), PanelMode::Constraint);
        QCOMPARE(session->choose(u"job-name"_s, u"Custom.Beach"_s).verdict, Verdict::Accepted);
        QVERIFY(session->choose(u"job-hold-until"_s, u"evening"_s).text.contains(u"job-hold-until"_s));
        session->setAttributes(opened->attributes);
        QCOMPARE(jobOf(*session, 1)->job.options.value(u"job-name"_s), u"Beach"_s);
    }

    // Only a CUPS server prints one at each end.
    void oneBannerPage()
    {
        const auto opened = queueNamed(u"photo"_s, 5s);
        QVERIFY(opened);
        IppAttributes attributes = opened->attributes;
        attributes.remove(u"operations-supported"_s);
        const Session session =
            *openQueue(opened->queue, *checkPpd(opened->ppd, u"photo"_s), PanelMode::Constraint, attributes);
        QVERIFY(!session->choose(u"job-sheets"_s, u"standard,secret"_s).letsThrough());
        for (const QString &typed : {u"standard"_s, u"none,standard"_s, u"standard,standard"_s}) {
            QVERIFY(session->choose(u"job-sheets"_s, u"none"_s).letsThrough());
            QVERIFY(session->choose(u"job-sheets"_s, typed).letsThrough());
            QCOMPARE(jobOf(*session, 1)->job.options.value(u"job-sheets"_s), u"standard"_s);
        }
    }

    void refused_data()
    {
        const auto add = rows<QString, QString, QString>();
        add("no time", u"job-hold-until"_s, u"Custom.24:10"_s, u"23:59"_s);
        add("neither a time nor a keyword", u"job-hold-until"_s, u"later"_s, u"evening"_s);
        add("priority", u"job-priority"_s, u"101"_s, u"from 1 to 100"_s);
        add("banner page", u"job-sheets"_s, u"none,odd"_s, u"topsecret"_s);
        add("too long", u"job-account-id"_s, QString(256, u'x'), u"255"_s);
        add("control character", u"job-account-id"_s, u"a\nb"_s, u"255"_s);
    }

    void refused()
    {
        const auto [key, value, word] = row<QString, QString, QString>();
        const Session session = openedQueue(u"photo"_s);
        const Ruling ruling = session->choose(key, value);
        QCOMPARE(ruling.verdict, Verdict::UnknownChoice);
        QVERIFY2(ruling.text.contains(word), qPrintable(ruling.text));
    }

    // It is kept apart from the choices, and never stored.
    void password()
    {
        const Session session = openedQueue(u"locked"_s);
        const QList<CustomParameter> pin = session->options().customParameters(u"job-password"_s);
        QVERIFY(pin.size() == 1 && pin.constFirst().isSecret() && pin.constFirst().maximum == 4);
        QVERIFY(!jobOf(*session, 1)->job.options.contains(u"job-password"_s));
        QVERIFY(session->choose(u"job-password"_s, u"Custom"_s).letsThrough());
        QVERIFY(!jobOf(*session, 1)->missing.isEmpty()); // nothing was entered
        QVERIFY(!session->choose(u"job-password"_s, u"12345"_s).letsThrough());
        QVERIFY(session->choose(u"job-password"_s, u"1234"_s).letsThrough());
        auto job = jobOf(*session, 1);
        QVERIFY(!job->job.options.contains(u"job-password"_s) && job->missing.isEmpty());
        QCOMPARE(useChoices(*openedQueue(u"locked"_s), {{u"job-password"_s, u"1234"_s}}).leftOut,
                 QStringList());
        const int id = send(job->job);
        QVERIFY(id > 0 && cupsd_.waitForJob(id));
        QVERIFY(
            cupsd_.run(u"lp"_s, {u"-d"_s, u"locked"_s, u"-o"_s, u"job-password=1234"_s, u"-o"_s,
                                 u"job-password-encryption=none"_s, QStringLiteral(CORVEL_SAMPLE_PHOTO)}) &&
            cupsd_.waitForJob(id + 1));
        for (const int each : {id, id + 1}) {
            const QByteArray options = cupsd_.job(each).options;
            QVERIFY(options.contains("job-password=1234") &&
                    options.contains("job-password-encryption=none"));
        }
    }

    // Attributes that arrive late add their options, and take nothing away.
    void optionsThatAreKnownLater()
    {
        const auto opened = queueNamed(u"photo"_s, 5s);
        QVERIFY(opened);
        const auto ppd = checkPpd(opened->ppd, u"photo"_s);
        const Session session = *openQueue(opened->queue, *ppd, PanelMode::Constraint);
        QCOMPARE(session->jobOptionKeys(), QStringList{u"job-name"_s});
        const QMap<QString, QString> wanted = {{u"job-priority"_s, u"37"_s},
                                               {u"job-sheets"_s, u"form,none"_s}};
        QCOMPARE(useChoices(*session, wanted).leftOut, QStringList());
        session->setAttributes(opened->attributes);
        QVERIFY(session->jobOptionKeys().contains(u"job-sheets-end"_s));
        QCOMPARE(useChoices(*session, wanted).leftOut, QStringList());
        session->setAttributes(opened->attributes); // and again, with each confirmation
        QCOMPARE(session->chosen(u"job-priority"_s), u"Custom.37"_s);
        QCOMPARE(jobOf(*session, 1)->job.options.value(u"job-sheets"_s), u"form,none"_s);
        // The printer's own names come first.
        const Session office = *openQueue(
            opened->queue,
            *checkPpd(smallPpd("*OpenUI *Collate: Boolean\n*DefaultCollate: True\n*Collate True: \"\"\n"
                               "*Collate False: \"\"\n*CloseUI: *Collate\n"),
                      u"office"_s),
            PanelMode::Constraint, opened->attributes);
        QVERIFY(!office->options().hasOption(u"multiple-document-handling"_s));
        QVERIFY(session->options().hasOption(u"multiple-document-handling"_s));
    }

private:
    static int send(const PrintJob &job)
    {
        const auto id = JobSubmission().send(job, {"x", "image/jpeg", u"x"_s});
        if (!id)
            qWarning("%s", qPrintable(id.failure().text));
        return id ? *id : 0;
    }

    QTemporaryDir home_;
    PrivateCupsd cupsd_;
};

CORVEL_TEST(JobOptionsTest)
#include "JobOptionsTest.moc"
