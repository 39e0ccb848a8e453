// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreparedJobs.h"
#include "TestMain.h"

#include <QtCore/QSet>
#include <QtTest/QTest>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

/// The tokens that programs get.
class PreparedJobsTest : public QObject
{
    Q_OBJECT

private:
    PreparedJobs::Time now_;
    PreparedJobs jobs_{[this] {
        return now_;
    }};

    static PreparedJob jobFor(const QString &queue)
    {
        PreparedPrint print;
        print.job.destination = Destination(queue);
        return {print};
    }
    std::optional<TokenFault> faultOf(quint32 token, const QString &program)
    {
        const auto taken = jobs_.take(token, program);
        return taken ? std::nullopt : std::optional(taken.failure().reason);
    }

private Q_SLOTS:
    void init()
    {
        now_ += 1h;
        QVERIFY(!jobs_.end());
    }

    void aTokenIsForOneProgramAndOnce()
    {
        const quint32 token = jobs_.add(u"org.a"_s, jobFor(u"laser"_s));
        QVERIFY(token != 0);
        QCOMPARE(faultOf(token, u"org.b"_s), TokenFault::Foreign);
        QCOMPARE(faultOf(token, u""_s), TokenFault::Foreign);
        const auto taken = jobs_.take(token, u"org.a"_s);
        QVERIFY(taken);
        QCOMPARE(taken->print.job.destination.queue, u"laser"_s);
        QCOMPARE(faultOf(token, u"org.a"_s), TokenFault::Unknown);
        QCOMPARE(faultOf(0, u"org.a"_s), TokenFault::Unknown);
    }

    void itLivesForALimitedTime()
    {
        const quint32 token = jobs_.add(u"org.a"_s, jobFor(u"laser"_s));
        QCOMPARE(jobs_.end(), now_ + PreparedJobs::lifetime);
        now_ += PreparedJobs::lifetime - 1s;
        const quint32 later = jobs_.add(u"org.a"_s, jobFor(u"other"_s));
        now_ += 1s;
        QCOMPARE(faultOf(token, u"org.a"_s), TokenFault::Unknown);
        QVERIFY(!faultOf(later, u"org.a"_s));
    }

    void noProgramDrivesOutAnother()
    {
        const quint32 quiet = jobs_.add(u"org.quiet"_s, jobFor(u"laser"_s));
        QSet<quint32> tokens;
        for (std::size_t i = 0; i < 2 * PreparedJobs::mostOfProgram; ++i) {
            now_ += 1ms;
            tokens += jobs_.add(u"org.loud"_s, jobFor(QString::number(i)));
        }
        QCOMPARE(tokens.size(), qsizetype(2 * PreparedJobs::mostOfProgram));
        qsizetype alive = 0;
        for (const quint32 token : std::as_const(tokens))
            alive += faultOf(token, u"org.loud"_s) ? 0 : 1;
        QCOMPARE(alive, qsizetype(PreparedJobs::mostOfProgram));
        QVERIFY(!faultOf(quiet, u"org.quiet"_s));
    }
};

CORVEL_TEST(PreparedJobsTest)
#include "PreparedJobsTest.moc"
