// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "NetworkPrinter.h"
#include "OpenedDialog.h"
#include "OptionsFetcher.h"
#include "ProgramRun.h"
#include "QueueCache.h"
#include "TestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonArray>
#include <QtGui/QImage>
#include <QtTest/QSignalSpy>

#include <algorithm>
#include <csignal>

using namespace testing_support;
using namespace std::chrono_literals;

namespace {

const QString photoQueue = u"Foto_Eins"_s;

/// Stops one of the surroundings' processes while it lives.
class Frozen
{
public:
    explicit Frozen(const char *variable)
        : pid_(qEnvironmentVariableIntValue(variable))
    {
        if (pid_ > 0)
            kill(pid_, SIGSTOP);
    }
    ~Frozen()
    {
        if (pid_ > 0)
            kill(pid_, SIGCONT);
    }
    Q_DISABLE_COPY_MOVE(Frozen)

private:
    pid_t pid_;
};

bool runs(const QString &program, const QStringList &arguments)
{
    return QProcess::execute(program, arguments) == 0;
}

} // namespace

/// Printers that are known only because they announce themselves. Runs in surroundings.sh.
class NetworkPrinterTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(qEnvironmentVariableIsSet("SURROUNDINGS"), "run it by surroundings.sh");
        QImage upright(600, 900, QImage::Format_RGB32);
        upright.fill(Qt::darkCyan);
        QVERIFY(upright.save(upright_, "JPEG"));
        const QString trouble = printer_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    }

    void isListedAndPrintsAtOnce()
    {
        const OpenedDialog opened(setup());
        opened.dialog->searchPrinters();
        QTRY_VERIFY(indexOf(opened, photoQueue) > 0);
        auto *chooser = opened.find<QComboBox>(u"printer"_s);
        QCOMPARE(chooser->itemText(indexOf(opened, photoQueue)), u"Foto Eins (on the network)"_s);
        // The best of several, since others use the machine, too.
        qint64 best = 1000;
        for (int i = 0; i < 5; ++i) {
            forgetQueue();
            opened.find<QWidget>(u"printer"_s)->setFocus();
            QTest::keyClick(chooser, Qt::Key_Home);
            QTRY_COMPARE(opened.dialog->printer(), u"built-in"_s);
            QElapsedTimer timer;
            timer.start();
            QTest::keyClick(chooser, Qt::Key_End);
            QVERIFY2(becomesReady(opened), qPrintable(opened.message()));
            best = std::min(best, timer.elapsed());
        }
        qInfo("options %lld ms after the printer was chosen", static_cast<long long>(best));
        QVERIFY(best <= 100);
        QCOMPARE(chooser->findText(u"Foto"_s, Qt::MatchContains), indexOf(opened, photoQueue));
    }

    // As with a queue that was set up; in between the print server has removed the printer's.
    void printsWhatWasChosen()
    {
        PrintDialogSetup wanted = setup(photoQueue);
        wanted.options = {{u"PageSize"_s, u"4x6.Borderless"_s}, {u"cupsPrintQuality"_s, u"High"_s}};
        wanted.copies = 2;
        const OpenedDialog opened(wanted);
        opened.dialog->searchPrinters();
        QVERIFY2(becomesReady(opened), qPrintable(opened.message()));
        for (int i = 0; i < 2; ++i) {
            const int job = printer_.jobs();
            opened.dialog->print();
            QTRY_VERIFY2_WITH_TIMEOUT(opened.message().contains(u"Printed"_s), qPrintable(opened.message()),
                                      15'000);
            QVERIFY(printer_.document(job) == contentOf(upright_));
            const QByteArray all = printer_.attributes(job).join('\n');
            for (const char *part : {"IPP_COPIES=2\n", "x-dimension=10160 y-dimension=15240",
                                     "media-bottom-margin=0", "IPP_PRINT_QUALITY=high\n"})
                QVERIFY2(all.contains(part), all.constData());
            forgetQueue();
        }
    }

    void isRemembered()
    {
        {
            const OpenedDialog opened(setup());
            opened.dialog->searchPrinters();
            choose(opened);
        }
        forgetQueue();
        const OpenedDialog again(setup());
        QCOMPARE(again.dialog->printer(), photoQueue);
        QVERIFY(again.find<QComboBox>(u"pageSize"_s)->count() > 0);
        QCOMPARE(again.find<QComboBox>(u"printer"_s)->currentText(), u"Foto Eins (on the network)"_s);
        QVERIFY(!again.dialog->isReady());
        again.dialog->searchPrinters();
        QVERIFY2(becomesReady(again), qPrintable(again.message()));
        QVERIFY(again.find<QComboBox>(u"MediaType"_s)); // the options are those of the cache
        forgetQueue();
        again.dialog->print();
        QTRY_VERIFY2_WITH_TIMEOUT(again.message().contains(u"Printed"_s), qPrintable(again.message()),
                                  15'000);
    }

    void isOneWithItsQueue()
    {
        const auto lists = [](const QString &name) {
            const QJsonArray all = runProgram({u"--list-printers"_s, u"--json"_s}).json().array();
            return std::any_of(all.cbegin(), all.cend(), [&name](const QJsonValue &each) {
                return each[u"name"_s] == name && each[u"announced"_s].toBool() == (name == photoQueue);
            });
        };
        QVERIFY(lists(photoQueue));
        const OpenedDialog opened(setup());
        opened.dialog->searchPrinters();
        QTRY_VERIFY(indexOf(opened, photoQueue) > 0);
        // The window asks the print server every five seconds.
        QVERIFY(runs(u"lpadmin"_s,
                     {u"-p"_s, u"mine"_s, u"-E"_s, u"-v"_s, u"ipp://Foto%20Eins._ipp._tcp.local/"_s}));
        QTRY_VERIFY_WITH_TIMEOUT(indexOf(opened, u"mine"_s) > 0, 8000);
        QCOMPARE(indexOf(opened, photoQueue), -1);
        QVERIFY(lists(u"mine"_s) && !lists(photoQueue));
        QVERIFY(runs(u"lpadmin"_s, {u"-x"_s, u"mine"_s}));
        QTRY_VERIFY_WITH_TIMEOUT(indexOf(opened, photoQueue) > 0, 8000);
    }

    void withoutAWindow()
    {
        forgetQueue();
        const QStringList batch = {u"--batch"_s, upright_, u"-o"_s, u"PageSize=4x6.Borderless"_s,
                                   u"--printer"_s};
        const int job = printer_.jobs();
        const ProgramRun run = runProgram(batch + QStringList{photoQueue});
        QCOMPARE(run.err, QByteArray());
        QVERIFY(run.out.startsWith("Sent upright.jpg to Foto_Eins as job "));
        QVERIFY(printer_.document(job) == contentOf(upright_));
        const auto refused = [&](const QString &word) {
            return wrongInRefusal(runProgram(batch + QStringList{u"nowhere"_s}), 1,
                                  {u"\"nowhere\" does not exist"_s, word});
        };
        QCOMPARE(refused(u"("_s), QByteArray());
        const Frozen avahi("AVAHI_PID");
        QCOMPARE(refused(u"Avahi does not answer"_s), QByteArray());
        // Nobody announces an address.
        QCOMPARE(wrongInRefusal(runProgram(batch + QStringList{u"ipp://me@localhost/"_s}), 1,
                                {u"not a printer's address"_s}),
                 QByteArray());
    }

    // By its address no print server is involved, and its own names reach it.
    void withoutAPrintServer_data()
    {
        QTest::addColumn<QString>("scheme");
        QTest::newRow("plain") << u"ipp"_s;
        QTest::newRow("encrypted") << u"ipps"_s;
    }

    void withoutAPrintServer()
    {
        QFETCH(QString, scheme);
        const Frozen server("CUPSD_PID");
        const int job = printer_.jobs();
        const ProgramRun run = runProgram({u"--batch"_s, upright_, u"-n"_s, u"2"_s, u"-o"_s,
                                           u"media=na_index-4x6_4x6in.borderless"_s, u"-o"_s,
                                           u"media-type=stationery"_s, u"-o"_s, u"print-quality=5"_s,
                                           u"--printer"_s, scheme + u"://localhost:8631/ipp/print"_s});
        QVERIFY2(run.status == 0, run.err.constData());
        QVERIFY(printer_.document(job) == contentOf(upright_));
        const QByteArray all = printer_.attributes(job).join('\n');
        for (const char *part :
             {"IPP_COPIES=2\n", "x-dimension=10160 y-dimension=15240", "media-bottom-margin=0",
              "media-type=stationery", "IPP_PRINT_QUALITY=high\n"})
            QVERIFY2(all.contains(part), all.constData());
    }

    // One that hangs is given up; it may have made the server keep a queue without a PPD.
    void printerThatDoesNotAnswer()
    {
        printer_.freeze();
        OptionsFetcher fetcher(nullptr, 1s);
        const QSignalSpy failed(&fetcher, &OptionsFetcher::failed);
        fetcher.fetch(u"hung"_s, std::nullopt, u"ipp://127.0.0.1:8631/ipp/print"_s);
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 2000);
        QVERIFY2(failed.at(0).at(2).toString().contains(u"\"hung\" on the network does not answer"_s),
                 qPrintable(failed.at(0).at(2).toString()));
        printer_.thaw();
    }

    void hungSurroundings_data()
    {
        QTest::addColumn<QByteArray>("process");
        QTest::newRow("Avahi") << QByteArray("AVAHI_PID");
        QTest::newRow("bus") << QByteArray("BUS_PID");
    }

    // The queues do not wait for the network; only who has asked for a printer there is told.
    void hungSurroundings()
    {
        QFETCH(const QByteArray, process);
        QVERIFY(runs(u"lpadmin"_s, {u"-p"_s, u"raw"_s, u"-E"_s, u"-v"_s, u"ipp://127.0.0.1:9/"_s}));
        forgetQueue();
        const Frozen frozen(process.constData());
        QElapsedTimer timer;
        {
            const OpenedDialog opened(setup());
            timer.start();
            opened.dialog->searchPrinters();
            QTRY_VERIFY(indexOf(opened, u"raw"_s) > 0);
            const qint64 listed = timer.elapsed();
            qInfo("queues listed after %lld ms", static_cast<long long>(listed));
            QVERIFY(listed < 2000); // a call that waits takes 25 s
            QTest::qWait(1000);     // the lister is running by now
            QCOMPARE(opened.message(), QString());
            QCOMPARE(indexOf(opened, photoQueue), -1);
            timer.start();
        }
        QVERIFY(timer.elapsed() < 2000); // nothing has waited for the lister
        const OpenedDialog opened(setup(u"nowhere"_s));
        opened.dialog->searchPrinters();
        QTRY_VERIFY(opened.message().contains(u"Avahi does not answer"_s));
        QVERIFY(opened.message().contains(u"\"nowhere\""_s));
    }

    // The print server keeps the printer's queue for a minute.
    void goesAndComesBack()
    {
        QCOMPARE(runProgram({u"--printer"_s, photoQueue, u"--list-options"_s}).status, 0);
        const OpenedDialog opened(setup());
        opened.dialog->searchPrinters();
        choose(opened);
        QCOMPARE(opened.find<QComboBox>(u"printer"_s)->currentData().value<Queue>().state,
                 Queue::State::Idle);
        printer_.stop();
        QTRY_COMPARE(indexOf(opened, photoQueue), -1);
        QCOMPARE(opened.dialog->printer(), u"built-in"_s);
        QVERIFY2(opened.message().contains(u"\"Foto_Eins\" is no longer there"_s),
                 qPrintable(opened.message()));
        const QString trouble = printer_.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        QTRY_VERIFY(indexOf(opened, photoQueue) > 0);
        QCOMPARE(opened.dialog->printer(), u"built-in"_s);
    }

private:
    PrintDialogSetup setup(const std::optional<QString> &printer = {}) const
    {
        PrintDialogSetup made = setupForPrinter(PanelMode::Constraint, printer);
        if (const auto photo = Photo::open(upright_))
            made.photos = {*photo};
        return made;
    }

    static int indexOf(const OpenedDialog &opened, const QString &printer)
    {
        const auto *chooser = opened.find<QComboBox>(u"printer"_s);
        for (int i = 0; i < chooser->count(); ++i) {
            if (chooser->itemData(i).value<Queue>().id() == printer)
                return i;
        }
        return -1;
    }

    static bool becomesReady(const OpenedDialog &opened)
    {
        return QTest::qWaitFor(
            [&] { return opened.dialog->printer() == photoQueue && opened.dialog->isReady(); }, 15'000);
    }

    static void choose(const OpenedDialog &opened)
    {
        QTRY_VERIFY(indexOf(opened, photoQueue) > 0);
        auto *chooser = opened.find<QComboBox>(u"printer"_s);
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_F);
        QVERIFY2(becomesReady(opened), qPrintable(opened.message()));
    }

    /// What the print server does by itself a minute after the last job.
    static void forgetQueue() { QProcess::execute(u"sh"_s, {u"-c"_s, u"lpadmin -x Foto_Eins 2>&1"_s}); }

    QTemporaryDir folder_;
    QString upright_ = folder_.filePath(u"upright.jpg"_s);
    NetworkPrinter printer_{u"Foto Eins"_s, 8631};
};

CORVEL_WIDGETS_TEST(NetworkPrinterTest)
#include "NetworkPrinterTest.moc"
