// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrivateCupsd.h"
#include "ProgramRun.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <csignal>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;
using namespace testing_support;

/// corvel-print --watch with a real print server. It is killed at any moment, and so is the server stopped.
class WatchRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString trouble = cupsd_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        // The backend may run as another user.
        QVERIFY(QFile::setPermissions(place_.path(), QFile::Permissions(0x7777)));
        // A line for each job. A job that the scheduler runs again, since it was stopped meanwhile, has the
        // same number.
        QVERIFY(cupsd_.setBackendScript("case \"$3\" in torn*) echo 'ERROR: Ribbon torn' >&2; exit 1;; esac\n"
                                        "printf '%s %s\\n' \"$1\" \"$3\" >> " +
                                        place_.path().toUtf8() + "/jobs; sleep 0.05"));
        QVERIFY(cupsd_.addQueue(u"photo"_s, smallPpd(), {u"-v"_s, u"scripted:/"_s}));
        QImage picture(60, 90, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        QVERIFY(picture.save(place_.filePath(u"sample.jpg"_s)));
    }

    void init()
    {
        for (const QString &name : {u"new"_s, u"done"_s, u"state"_s}) {
            QVERIFY(QDir(place_.filePath(name)).removeRecursively());
            QVERIFY(QDir(place_.path()).mkdir(name));
        }
        for (const QString &name : {u"jobs"_s, u"out"_s, u"err"_s})
            QFile::remove(place_.filePath(name));
    }

    // The printer is stopped, then the server: a job that was sent is not sent again, and each wait is
    // reported once.
    void waits()
    {
        const auto program = start();
        QTRY_COMPARE(starts(), 1);
        QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"photo"_s}));
        QVERIFY(arrive(u"1.jpg"_s) && arrive(u"2.jpg"_s));
        QTRY_VERIFY(contentOf(place_.filePath(u"err"_s)).contains("waits"));
        QVERIFY(cupsd_.goDown() && cupsd_.comeBack());
        QVERIFY(cupsd_.run(u"cupsreject"_s, {u"photo"_s}) && cupsd_.run(u"cupsenable"_s, {u"photo"_s}));
        QTRY_COMPARE(jobsOf(u"1.jpg"_s), 1);
        QTRY_VERIFY(contentOf(place_.filePath(u"err"_s)).contains("2.jpg waits"));
        QFile changed(place_.filePath(u"new/2.jpg"_s)); // another photo from now on
        QVERIFY(changed.open(QIODevice::ReadWrite) &&
                changed.setFileTime(QDateTime::currentDateTime().addDays(-1), QFile::FileModificationTime));
        changed.close();
        QTRY_COMPARE(contentOf(place_.filePath(u"err"_s)).count("2.jpg waits"), 2);
        QVERIFY(cupsd_.run(u"cupsaccept"_s, {u"photo"_s}));
        QTRY_COMPARE(QDir(place_.filePath(u"done"_s)).entryList(QDir::Files).size(), 2);
        QCOMPARE(jobsOf(u"1.jpg"_s), 1);
        QCOMPARE(jobsOf(u"2.jpg"_s), 1);
        const QByteArray complaints = contentOf(place_.filePath(u"err"_s));
        QVERIFY2(complaints.count("1.jpg (job") == 1 && complaints.count("Printing 1.jpg continues") == 1 &&
                     complaints.count("2.jpg waits") == 2 &&
                     complaints.count("Printing 2.jpg continues") == 1,
                 complaints.constData());
        end(*program);
    }

    // Its job fails, or somebody cancels it, even before the program is started again.
    void setsAsideWhatFails()
    {
        auto program = start();
        QTRY_COMPARE(starts(), 1);
        QVERIFY(arrive(u"torn.jpg"_s));
        QTRY_VERIFY(
            contentOf(place_.filePath(u"new/unprintable/torn.jpg.reason.txt"_s)).contains("Ribbon torn"));
        QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"photo"_s}) && arrive(u"1.jpg"_s));
        QTRY_VERIFY(contentOf(place_.filePath(u"err"_s)).contains("waits"));
        program->kill();
        QVERIFY(program->waitForFinished());
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}) && cupsd_.run(u"cupsenable"_s, {u"photo"_s}));
        program = start();
        QTRY_VERIFY(QFile::exists(place_.filePath(u"new/unprintable/1.jpg"_s)));
        QCOMPARE(jobsOf(u"1.jpg"_s), 0);
        end(*program);
    }

    // Killed between the server's answer and the record of it.
    void findsTheJobThatWasBegun_data()
    {
        const auto add = rows<bool, QString, QByteArray>();
        add("the server has it", true, u"kept.jpg"_s, QByteArray("Printed kept.jpg"));
        add("the server has forgotten it", false, u"gone.jpg"_s,
            QByteArray("unclear whether \"gone.jpg\" was printed"));
    }

    void findsTheJobThatWasBegun()
    {
        const auto [isKept, photo, words] = row<bool, QString, QByteArray>();
        QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"photo"_s}));
        auto program = start();
        QTRY_COMPARE(starts(), 1);
        QVERIFY(arrive(photo));
        QTRY_VERIFY(contentOf(place_.filePath(u"err"_s)).contains("waits"));
        program->kill();
        QVERIFY(program->waitForFinished());
        QByteArray content = contentOf(record());
        content.truncate(content.lastIndexOf('{'));
        QVERIFY(content.contains("\"began\"") && !content.contains("\"sent\"") && store(record(), content));
        if (!isKept)
            QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s, u"-x"_s}));
        QVERIFY(cupsd_.run(u"cupsenable"_s, {u"photo"_s}));
        program = start();
        QTRY_VERIFY(
            (contentOf(place_.filePath(u"out"_s)) + contentOf(place_.filePath(u"err"_s))).contains(words));
        end(*program);
        QCOMPARE(jobsOf(photo), isKept ? 1 : 0);
        QCOMPARE(QFile::exists(place_.filePath(u"done/"_s + photo)), isKept);
    }

    // Each photo is printed exactly once, or it is reported that this is unclear, and none is lost.
    void survivesBeingKilled()
    {
        const int kills = qEnvironmentVariable("CORVEL_WATCH_KILLS", u"15"_s).toInt();
        const uint seed = qEnvironmentVariableIsSet("CORVEL_WATCH_SEED")
                              ? qEnvironmentVariable("CORVEL_WATCH_SEED").toUInt()
                              : std::random_device()();
        qInfo("CORVEL_WATCH_SEED=%u CORVEL_WATCH_KILLS=%d", seed, kills);
        std::mt19937 random(seed);
        const auto upTo = [&random](int most) {
            return std::uniform_int_distribution(0, most)(random);
        };
        QStringList photos;
        auto program = start();
        QTRY_COMPARE(starts(), 1);
        for (int kill = 0; kill < kills; ++kill) {
            for (int left = 1 + upTo(2); left > 0; --left) {
                photos += u"photo%1.jpg"_s.arg(photos.size());
                QVERIFY(arrive(photos.constLast()));
            }
            const bool isServerStopped = upTo(5) == 0;
            // Half of the times, soon after a step is recorded.
            if (upTo(1) == 0) {
                awaitRecord(1 + upTo(4));
                QTest::qSleep(upTo(6));
            } else {
                QTest::qSleep(upTo(400));
            }
            if (isServerStopped) {
                QVERIFY(cupsd_.goDown());
                QTest::qSleep(upTo(100));
            }
            const bool comesBackFirst = upTo(1) == 0;
            if (isServerStopped && comesBackFirst)
                QVERIFY(cupsd_.comeBack());
            program->kill();
            QVERIFY(program->waitForFinished());
            if (isServerStopped && !comesBackFirst)
                QVERIFY(cupsd_.comeBack());
            program = start();
        }
        const auto unclear = [this](const QString &photo) {
            return contentOf(place_.filePath(u"err"_s))
                .contains("unclear whether \"" + photo.toUtf8() + "\" was printed");
        };
        const auto isDone = [&](const QString &photo) {
            return QFile::exists(place_.filePath(u"done/"_s + photo)) || unclear(photo);
        };
        QTRY_VERIFY_WITH_TIMEOUT(std::ranges::all_of(photos, isDone), 10'000 + kills * 500);
        end(*program);
        int unclearCount = 0;
        for (const QString &photo : std::as_const(photos)) {
            const int jobs = jobsOf(photo);
            const bool isUnclear = unclear(photo);
            unclearCount += isUnclear ? 1 : 0;
            QVERIFY2(isUnclear ? jobs <= 1 : jobs == 1,
                     qPrintable(u"%1 was printed %2 times"_s.arg(photo).arg(jobs)));
            QVERIFY2(QFile::exists(place_.filePath(u"done/"_s + photo)) !=
                         QFile::exists(place_.filePath(u"new/"_s + photo)),
                     qPrintable(photo));
        }
        qInfo("%d photos, %d of them unclear", int(photos.size()), unclearCount);
        QVERIFY2(unclearCount * 3 < photos.size(), contentOf(place_.filePath(u"err"_s)).constData());
    }

private:
    std::unique_ptr<QProcess> start()
    {
        startsBefore_ = starts();
        auto program = std::make_unique<QProcess>();
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(u"XDG_STATE_HOME"_s, place_.filePath(u"state"_s));
        variables.remove(u"QT_QPA_PLATFORM"_s);
        program->setProcessEnvironment(variables);
        program->setStandardOutputFile(place_.filePath(u"out"_s), QIODevice::Append);
        program->setStandardErrorFile(place_.filePath(u"err"_s), QIODevice::Append);
        program->start(printProgram(), {u"--watch"_s, place_.filePath(u"new"_s), u"--printed"_s,
                                        place_.filePath(u"done"_s), u"--printer"_s, u"photo"_s});
        return program;
    }

    qsizetype starts() const { return contentOf(place_.filePath(u"out"_s)).count("Photos that arrive"); }

    void end(QProcess &program) const
    {
        QTRY_VERIFY(starts() > startsBefore_);
        program.terminate();
        QVERIFY(program.waitForFinished(10'000));
        QVERIFY(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0);
    }

    /// Some are written, some are moved there.
    bool arrive(const QString &name)
    {
        const QString path = place_.filePath(u"new/"_s + name);
        return QFile::copy(place_.filePath(u"sample.jpg"_s), isMoved_ ? place_.filePath(name) : path) &&
               (!std::exchange(isMoved_, !isMoved_) || QFile::rename(place_.filePath(name), path));
    }

    QString record() const
    {
        const QDir records(place_.filePath(u"state/corvel-print/watch"_s));
        return records.filePath(records.entryList({u"*.jsonl"_s}).value(0));
    }

    /// Waits until that many lines more are in the record, or for a second.
    void awaitRecord(int lines)
    {
        const auto count = [this] {
            return contentOf(record()).count('\n');
        };
        QElapsedTimer timer;
        timer.start();
        for (const auto before = count(); count() < before + lines && timer.elapsed() < 1000;)
            QTest::qSleep(1);
    }

    /// How many jobs of the name the printer had.
    int jobsOf(const QString &photo) const
    {
        QSet<QByteArray> jobs;
        for (const QByteArray &line : contentOf(place_.filePath(u"jobs"_s)).split('\n')) {
            if (line.endsWith(' ' + photo.toUtf8()))
                jobs.insert(line);
        }
        return int(jobs.size());
    }

    QTemporaryDir place_{u"/tmp/watch-run-XXXXXX"_s};
    PrivateCupsd cupsd_;
    qsizetype startsBefore_ = 0; ///< of the program
    bool isMoved_ = false;
};

CORVEL_TEST(WatchRunTest)
#include "WatchRunTest.moc"
