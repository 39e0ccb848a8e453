// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueCache.h"
#include "QueueTest.h"
#include "TestMain.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

using namespace testing_support;

/// The window with a queue from an earlier time, with queues that change, and with jobs that fail.
class QueueWindowTest : public QueueTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QueueTest::initTestCase();
        QVERIFY(cupsd_.addQueue(u"raw"_s));
        QVERIFY(cupsd_.addQueue(u"odd"_s, ppd_, {u"-v"_s, u"scripted:/"_s}));
    }

    void init()
    {
        WindowTest::init();
        QVERIFY(cupsd_.addQueue(u"photo"_s, ppd_));
    }

    // With its panels, which can be used; but nothing is printed on what the server may not have any more.
    void queueUsedLastIsShownAtOnce()
    {
        remember(u"photo"_s);
        const OpenedDialog opened(setupForPrinter());
        QCOMPARE(opened.dialog->printer(), u"photo"_s);
        QVERIFY(!opened.isSeen(u"folder"_s));
        opened.type(81, u"9"_s);
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
        opened.dialog->print();
        QTest::keyClick(opened.dialog.get(), Qt::Key_P, Qt::ControlModifier);
        QVERIFY2(cupsd_.activeJobs().isEmpty(), cupsd_.activeJobs().constData());
        QVERIFY(opened.dialog->whyNotReady().contains(u"photo"_s));

        opened.dialog->searchPrinters();
        QTRY_VERIFY(opened.dialog->isReady());
        QCOMPARE(opened.fieldText(81), u"9"_s);
        QCOMPARE(opened.message(), QString());
        QVERIFY(hasOption(print(opened), "Red=9"));
    }

    // An untouched dialog then shows them; what the user has begun with stays.
    void serversDefaultsArriveLate()
    {
        remember(u"photo"_s);
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-o"_s, u"Green-default=3"_s}));
        for (const bool isTouched : {false, true}) {
            const OpenedDialog opened(setupForPrinter());
            QCOMPARE(opened.fieldTexts({81, 82}), u"0 0"_s);
            if (isTouched)
                opened.type(81, u"9"_s);
            opened.dialog->searchPrinters();
            QTRY_VERIFY(opened.dialog->isReady());
            QCOMPARE(opened.fieldTexts({81, 82}), isTouched ? u"9 0"_s : u"0 3"_s);
            opened.undo();
            QCOMPARE(opened.fieldTexts({81, 82}), isTouched ? u"0 0"_s : u"0 3"_s);
        }
        QVERIFY(cupsd_.deleteQueue(u"photo"_s));
    }

    // A requested option of the job waits for them, and is then in force from the beginning.
    void requestedJobOptionWaits()
    {
        remember(u"photo"_s);
        PrintDialogSetup setup = setupForPrinter();
        setup.printer = u"photo"_s;
        setup.options = {{u"Green"_s, u"4"_s}, {u"job-hold-until"_s, u"indefinite"_s}};
        const OpenedDialog opened(setup);
        QCOMPARE(opened.message(), QString());
        opened.dialog->searchPrinters();
        QTRY_VERIFY(opened.dialog->isReady());
        QCOMPARE(opened.fieldText(82), u"4"_s);
        opened.undo();
        opened.dialog->print();
        QTRY_VERIFY(cupsd_.activeJobs().contains("photo-"));
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}));
        // The next one is not held.
        const OpenedDialog next(setupForPrinter());
        choose(next, u"photo"_s);
        QVERIFY(hasOption(print(next), "Green=4"));
    }

    void rememberedPrivately()
    {
        remember(u"photo"_s);
        const QFileInfo file(QueueCache::file());
        QVERIFY(file.filePath().startsWith(config_->filePath(u"cache"_s)));
        QCOMPARE(file.permissions() &
                     (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
                 QFile::Permissions());
        QCOMPARE(QFileInfo(file.path()).permissions() & (QFile::ReadOther | QFile::ExeOther),
                 QFile::Permissions());
        // Nobody else may put a printer there; what is broken is as good as nothing.
        QVERIFY(
            QFile::setPermissions(file.filePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::WriteOther));
        QVERIFY(!QueueCache::load());
        QVERIFY(QFile::setPermissions(file.filePath(), QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QueueCache::load());
        QVERIFY(QFile::resize(file.filePath(), file.size() / 2));
        const OpenedDialog opened(setupForPrinter());
        QCOMPARE(opened.dialog->printer(), u"built-in"_s);
        // A printer whose PPD is too large to be kept does not leave the one before in its place.
        QueueCache::save({queueNamed(u"large"_s), "*PPD-Adobe", true});
        QVERIFY(QueueCache::load());
        QueueCache::save({queueNamed(u"large"_s), QByteArray(4 << 20, '*'), true});
        QVERIFY(!QueueCache::load());
        // A name that has to be cleaned is not changed into another one.
        QueueCache::save({queueNamed(u"pho\u0007to"_s), {}, true});
        QVERIFY(!QueueCache::load());
        // Another print server's queues are none of this one's.
        const QByteArray server = qgetenv("CUPS_SERVER");
        qputenv("CUPS_SERVER", "elsewhere.example:631");
        const QString other = QueueCache::file();
        qputenv("CUPS_SERVER", server);
        QVERIFY(other != file.filePath());
    }

    void changedPpdKeepsWhatItCan()
    {
        remember(u"photo"_s);
        QVERIFY(cupsd_.addQueue(u"photo"_s, reduced_));
        PrintDialogSetup setup = setupForPrinter();
        setup.printer = u"photo"_s;
        setup.options = {{u"job-hold-until"_s, u"indefinite"_s}};
        const OpenedDialog opened(setup);
        opened.type(81, u"9"_s);
        opened.type(82, u"8"_s);
        opened.find<QSpinBox>(u"copies"_s)->setValue(3);
        opened.dialog->searchPrinters();
        QTRY_VERIFY(opened.dialog->isReady());
        QVERIFY2(opened.message().contains(u"have changed"_s), qPrintable(opened.message()));
        QCOMPARE(opened.fieldTexts({81, 82}), u"0 8"_s);
        QCOMPARE(opened.find<QSpinBox>(u"copies"_s)->value(), 3);
        // What was requested of the job could not be chosen before.
        opened.dialog->print();
        QTRY_VERIFY(cupsd_.activeJobs().contains("photo-"));
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}));
    }

    void rememberedQueueThatIsGone()
    {
        remember(u"photo"_s);
        QVERIFY(cupsd_.deleteQueue(u"photo"_s));
        const OpenedDialog opened(setupForPrinter());
        QCOMPARE(opened.dialog->printer(), u"photo"_s);
        opened.dialog->searchPrinters();
        QTRY_COMPARE(opened.dialog->printer(), u"built-in"_s);
        QVERIFY(opened.dialog->isReady());
        QVERIFY2(opened.message().contains(u"\"photo\""_s), qPrintable(opened.message()));
        QVERIFY(!isListed(opened, u"photo"_s));
    }

    void lateDefaultReplacesNothingTouched()
    {
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
        const OpenedDialog touched(setupForPrinter());
        touched.type(81, u"9"_s);
        touched.dialog->searchPrinters();
        QTRY_VERIFY(isListed(touched, u"photo"_s));
        QTest::qWait(100);
        QCOMPARE(touched.dialog->printer(), u"built-in"_s);
        QCOMPARE(touched.fieldText(81), u"9"_s);
        const OpenedDialog untouched(setupForPrinter());
        QTest::keyClick(untouched.dialog.get(), Qt::Key_Tab); // a look round
        untouched.dialog->searchPrinters();
        QTRY_COMPARE(untouched.dialog->printer(), u"photo"_s);
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-x"_s, u"photo"_s}));
    }

    // What the user has chosen stays; what was merely the default does not outlive it.
    void rememberedDefaultGivesWayToTheDefault()
    {
        for (const bool wasChosen : {false, true}) {
            QueueCache::save({queueNamed(u"odd"_s), ppd_, wasChosen});
            QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
            const OpenedDialog opened(setupForPrinter());
            QCOMPARE(opened.dialog->printer(), u"odd"_s);
            opened.dialog->searchPrinters();
            QTRY_VERIFY(isListed(opened, u"photo"_s) && opened.dialog->isReady());
            QCOMPARE(opened.dialog->printer(), wasChosen ? u"odd"_s : u"photo"_s);
        }
    }

    void ppdThatChangesBeforePrinting()
    {
        const OpenedDialog opened(setupForPrinter());
        choose(opened, u"photo"_s);
        opened.type(81, u"9"_s);
        opened.type(82, u"8"_s);
        QVERIFY(cupsd_.addQueue(u"photo"_s, reduced_));
        opened.dialog->print();
        QTRY_VERIFY(opened.message().contains(u"kept as far"_s));
        QVERIFY2(cupsd_.activeJobs().isEmpty(), cupsd_.activeJobs().constData());
        QVERIFY(opened.dialog->isReady());
        QCOMPARE(opened.fieldText(81), u"0"_s);
        const int id = print(opened);
        QVERIFY(hasOption(id, "Red=0") && hasOption(id, "Green=8"));
    }

    void queueWithoutPpd()
    {
        const OpenedDialog opened(setupForPrinter());
        opened.click(u"position"_s);
        const QWidget *position = opened.find<QWidget>(u"moveRight"_s)->window();
        QVERIFY(position->isVisible());
        choose(opened, u"raw"_s);
        QVERIFY(!position->isVisible()); // it cannot be moved there
        QVERIFY(opened.message().contains(u"no PPD"_s));
        QCOMPARE(opened.find<QComboBox>(u"pageSize"_s)->count(), 1);
        // Nothing suggests that a placement would be printed.
        const auto isOff = [&opened](const QString &name) {
            const auto *control = opened.find<QWidget>(name);
            return !control->isEnabled() && control->toolTip().contains(u"places the photo"_s);
        };
        QVERIFY(isOff(u"scaling"_s) && isOff(u"turn"_s));
        QVERIFY(opened.find<QLabel>(u"photoLabel"_s)->text().contains(u"only an example"_s));
        const RecordedJob job = cupsd_.job(print(opened));
        QVERIFY(job.document == *setupForPrinter().photos.constFirst().content());
        QVERIFY(!job.options.contains("PageSize"));
        QTest::keyClick(opened.find<QComboBox>(u"printer"_s), Qt::Key_Home);
        QTRY_COMPARE(opened.dialog->printer(), u"built-in"_s);
        QVERIFY(!isOff(u"scaling"_s) && !isOff(u"turn"_s));
        QVERIFY(!opened.find<QLabel>(u"photoLabel"_s)->text().contains(u"only an example"_s));
    }

    void statusIsShownInWords()
    {
        QVERIFY(cupsd_.setBackendScript(
            "echo 'ATTR: marker-names=Ribbon marker-types=ribbon marker-levels=42' >&2\n"
            "echo 'STATE: +media-empty-warning' >&2\nexit 0"));
        const OpenedDialog opened(setupForPrinter());
        choose(opened, u"odd"_s);
        auto *status = opened.find<QLabel>(u"status"_s);
        QCOMPARE(status->text(), u"ready"_s);
        opened.dialog->print();
        QTRY_VERIFY(jobOf(opened) > 0);
        QTRY_VERIFY_WITH_TIMEOUT(status->text().contains(u"out of paper"_s), 10000);
        QVERIFY2(status->text().contains(u"Ribbon 42 %"_s), qPrintable(status->text()));
        QVERIFY(opened.dialog->isReady());
    }

    void failingAndStoppedJobs()
    {
        const OpenedDialog opened(setupForPrinter());
        choose(opened, u"odd"_s);
        QVERIFY(cupsd_.setBackendScript("echo 'ERROR: Ribbon torn' >&2; exit 1"));
        opened.dialog->print();
        QTRY_VERIFY(opened.message().contains(u"Ribbon torn"_s));
        QVERIFY(cupsd_.setBackendScript("trap 'exit 0' TERM; sleep 20 & wait"));
        opened.dialog->print();
        QTRY_VERIFY(cupsd_.activeJobs().contains("odd-"));
        QVERIFY(opened.isSeen(u"progress"_s));
        opened.click(u"cancel"_s);
        opened.click(u"messageAction"_s);
        QTRY_VERIFY(opened.message().contains(u"stopped"_s));
        QTRY_COMPARE(cupsd_.activeJobs(), QByteArray());
        QVERIFY(!opened.isSeen(u"progress"_s));
        // Closed while the printer works, the window leaves the job alone, and says so before.
        opened.dialog->print();
        QTRY_VERIFY(cupsd_.activeJobs().contains("odd-"));
        QTRY_VERIFY(opened.find<QWidget>(u"progressText"_s)->accessibleName().contains(u"printing"_s));
        opened.dialog->close();
        QVERIFY(opened.dialog->isVisible());
        QVERIFY2(opened.message().contains(u"continues printing"_s), qPrintable(opened.message()));
        opened.click(u"messageAction"_s);
        QVERIFY(opened.dialog->isHidden());
        QTRY_VERIFY(opened.find<QWidget>(u"print"_s)->isEnabled()); // nothing follows the job any more
        QVERIFY(cupsd_.activeJobs().contains("odd-"));
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}));
    }

    // One line for all; and when it is stopped, how many came out.
    void manyJobs()
    {
        PrintDialogSetup three = setupForPrinter();
        three.photos = QList<Photo>(3, three.photos.constFirst());
        const OpenedDialog opened(three);
        choose(opened, u"odd"_s);
        QVERIFY(cupsd_.setBackendScript("exit 0"));
        opened.dialog->print();
        QTRY_VERIFY_WITH_TIMEOUT(opened.message().contains(u"(jobs "_s), 15000);
        static const QRegularExpression line(u"^Printed 3 photos on odd \\(jobs ([0-9]+) to ([0-9]+)\\)$"_s);
        const QRegularExpressionMatch match = line.match(opened.message());
        QVERIFY2(match.hasMatch(), qPrintable(opened.message()));
        QCOMPARE(match.captured(2).toInt(), match.captured(1).toInt() + 2);
        QCOMPARE(opened.find<QWidget>(u"messageDetailText"_s)->accessibleName().count(u"sample.jpg"_s), 3);
        for (const auto *button : opened.dialog->findChildren<QPushButton *>())
            QVERIFY(button->text() != u"Open Folder"_s || !button->isVisible());

        // Stopped at once, the photo in the printer is not printed; stopped after it, it is.
        const auto *text = opened.find<QWidget>(u"progressText"_s);
        int last = match.captured(2).toInt();
        for (const bool isAtOnce : {true, false}) {
            const QByteArray second = QByteArray::number(last + 2);
            QVERIFY(cupsd_.setBackendScript("[ $1 -lt " + second +
                                            " ] && exit 0; trap 'exit 0' TERM; sleep " +
                                            (isAtOnce ? "20" : "3") + " & wait"));
            opened.dialog->print();
            QTRY_VERIFY_WITH_TIMEOUT(text->accessibleName().startsWith(u"2 of 3"_s) &&
                                         text->accessibleName().contains(u"printing"_s),
                                     15000);
            opened.click(u"cancel"_s);
            opened.click(isAtOnce ? u"messageAction2"_s : u"messageAction"_s);
            QVERIFY(opened.find<QPushButton>(u"cancel"_s)->isEnabled() != isAtOnce);
            QTRY_COMPARE_WITH_TIMEOUT(
                opened.message(), u"Printing was stopped: printed %1 of 3 photos."_s.arg(isAtOnce ? 1 : 2),
                10000);
            QTRY_COMPARE(cupsd_.activeJobs(), QByteArray());
            QVERIFY(cupsd_.setBackendScript("exit 0"));
            opened.click(u"messageAction"_s);
            last += isAtOnce ? 5 : 4;
            QTRY_COMPARE_WITH_TIMEOUT(
                opened.message(),
                isAtOnce ? u"Printed 2 photos on odd (jobs %1 to %2)"_s.arg(last - 1).arg(last)
                         : u"Printed sample.jpg on odd (job %1)"_s.arg(last),
                10000);
        }
    }

    // One of three: which, and why, and then that one alone.
    void failedJobIsTheRest()
    {
        PrintDialogSetup three = setupForPrinter();
        three.photos = QList<Photo>(3, three.photos.constFirst());
        const OpenedDialog opened(three);
        choose(opened, u"odd"_s);
        QVERIFY(cupsd_.setBackendScript("[ -e \"$TMPDIR/once\" ] && exit 0; [ $(($1 % 3)) -ne 0 ] && exit 0; "
                                        ": > \"$TMPDIR/once\"; echo 'ERROR: Ribbon torn' >&2; exit 1"));
        opened.dialog->print();
        QTRY_VERIFY_WITH_TIMEOUT(
            opened.message().startsWith(
                u"Printed 2 of 3 photos. Not printed: 1.\nThe printer \"odd\" could not"_s),
            15000);
        QVERIFY(opened.message().contains(u"Ribbon torn"_s));
        QVERIFY(opened.find<QWidget>(u"messageDetailText"_s)->accessibleName().startsWith(u"The printer"_s));
        opened.click(u"messageAction"_s);
        QTRY_VERIFY_WITH_TIMEOUT(opened.message().startsWith(u"Printed sample.jpg on odd (job "_s), 10000);
    }

private:
    static bool isListed(const OpenedDialog &opened, const QString &text)
    {
        return opened.find<QComboBox>(u"printer"_s)->findText(text, Qt::MatchContains) >= 0;
    }

    static void choose(const OpenedDialog &opened, const QString &printer)
    {
        opened.dialog->searchPrinters();
        QTRY_VERIFY(isListed(opened, printer));
        auto *chooser = opened.find<QComboBox>(u"printer"_s);
        chooser->setFocus();
        QTest::keyClick(chooser, printer.at(0).toLatin1());
        QVERIFY(showsReady(opened, printer));
    }

    static Queue queueNamed(const QString &name)
    {
        Queue queue;
        queue.name = name;
        return queue;
    }

    /// Uses the queue once.
    static void remember(const QString &queue)
    {
        const OpenedDialog opened(setupForPrinter());
        choose(opened, queue);
    }
};

CORVEL_WIDGETS_TEST(QueueWindowTest)
#include "QueueWindowTest.moc"
