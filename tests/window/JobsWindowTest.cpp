// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobsWindow.h"
#include "JobSubmission.h"
#include "JobsModel.h"
#include "MessageBar.h"
#include "QueueTest.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtWidgets/QTreeView>

using namespace testing_support;

/// The window of the user's jobs, with a real print server.
class JobsWindowTest : public QueueTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QueueTest::initTestCase();
        QVERIFY(cupsd_.addQueue(u"odd"_s, {}, {u"-v"_s, u"scripted:/"_s}));
    }

    void cleanup() { QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s, u"-x"_s})); }

    // Held, released, failed, and printed again.
    void actsOnWhatIsSelected()
    {
        QVERIFY(cupsd_.setBackendScript("echo 'ERROR: Ribbon torn' >&2; exit 1"));
        const int other = send(u"other"_s, u"indefinite"_s);
        const int waiting = send(u"a photo.jpg"_s, u"indefinite"_s);
        const Opened opened;
        QTRY_COMPARE(opened.states(), u"other: held|a photo.jpg: held"_s);
        QCOMPARE(opened.cell(waiting, 1), u"odd"_s);
        // The C locale's times have seconds, and the list takes some to come.
        const QTime since = QLocale().toTime(opened.cell(waiting, 3), QLocale::ShortFormat);
        QVERIFY2(since.isValid() && since.secsTo(QTime::currentTime()) < 60,
                 qPrintable(opened.cell(waiting, 3)));
        for (const auto &name : {u"cancelJobs"_s, u"holdJobs"_s, u"releaseJobs"_s, u"printJobsAgain"_s})
            QVERIFY(!opened.button(name)->isEnabled() && !opened.button(name)->toolTip().isEmpty());

        // By keys; and what is selected stays so while the list changes above and below it.
        QTest::keyClick(opened.list, Qt::Key_Down);
        QVERIFY(cupsd_.run(u"cancel"_s, {QString::number(other)}));
        const int last = send(u"last"_s, u"indefinite"_s);
        QTRY_COMPARE(opened.states(), u"a photo.jpg: held|last: held|other: canceled"_s);
        QVERIFY(!opened.button(u"holdJobs"_s)->isEnabled());
        QTest::keyClick(opened.list, Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(opened.cell(waiting, 2), u"failed: Ribbon torn"_s);
        QCOMPARE(opened.cell(last, 2), u"held"_s);
        QVERIFY(cupsd_.setBackendScript("exit 0"));
        QVERIFY(opened.button(u"printJobsAgain"_s)->isEnabled());
        opened.click(u"printJobsAgain"_s);
        QTRY_COMPARE(opened.cell(waiting, 2), u"printed"_s);
        QCOMPARE(opened.message(), QString());

        // A job that waits for its printer can be held.
        QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"-r"_s, u"new ribbon on its way"_s, u"odd"_s}));
        const int pending = send(u"pending"_s);
        QTRY_VERIFY(opened.cell(pending, 2).contains(u"new ribbon on its way"_s));
        opened.select(pending);
        opened.click(u"holdJobs"_s);
        QTRY_COMPARE(opened.cell(pending, 2), u"held"_s);
        QVERIFY(cupsd_.run(u"cupsenable"_s, {u"odd"_s}));
        QTest::keyClick(opened.window, Qt::Key_Escape);
        QTRY_VERIFY(!opened.dialog.findChild<JobsWindow *>());
    }

    // The server counts its files when it starts.
    void documentThatIsNotKept()
    {
        QVERIFY(cupsd_.setBackendScript("exit 0"));
        const int job = send(u"a photo.jpg"_s);
        const Opened opened;
        QTRY_COMPARE(opened.cell(job, 2), u"printed"_s);
        QVERIFY(cupsd_.goDown());
        QTRY_VERIFY2(opened.message().contains(u"No print server is running"_s),
                     qPrintable(opened.message()));
        QCOMPARE(opened.cell(job, 2), u"printed"_s);
        QDir spool(QFileInfo(cupsd_.socketPath()).path() + u"/spool"_s);
        for (const QString &document : spool.entryList({u"d*"_s}, QDir::Files))
            QVERIFY(spool.remove(document));
        QVERIFY(cupsd_.comeBack());
        QTRY_COMPARE(opened.message(), QString());
        opened.select(job);
        opened.click(u"printJobsAgain"_s);
        QTRY_COMPARE(
            opened.message(),
            u"Job %1 (a photo.jpg) cannot be printed again, because the print server has not kept its "
            "document. Open the photo in this program and print it from there."_s.arg(job));
    }

    void hundredsAtOnce()
    {
        constexpr int count = 300;
        for (int i = 0; i < count; ++i)
            send(u"photo%1.jpg"_s.arg(i), u"indefinite"_s);
        const Opened opened;
        QTRY_COMPARE(opened.list->model()->rowCount(), count);
        QTest::keyClick(opened.list, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(opened.list, Qt::Key_Delete);
        QTRY_COMPARE_WITH_TIMEOUT(cupsd_.activeJobs(), QByteArray(), 20000);
        QTRY_VERIFY(!opened.states().contains(u"held"_s) && opened.states().contains(u"canceled"_s));
        QCOMPARE(opened.message(), QString());
        // The last ones that are over are listed only.
        QTRY_COMPARE(opened.list->model()->rowCount(), 50);
    }

    // The window is used on, and closes at once.
    void serverThatHangs()
    {
        const int job = send(u"a photo.jpg"_s, u"indefinite"_s);
        const Opened opened;
        QTRY_COMPARE(opened.cell(job, 2), u"held"_s);
        opened.select(job);
        cupsd_.freeze();
        QElapsedTimer timer;
        timer.start();
        opened.click(u"cancelJobs"_s);
        QTest::keyClick(opened.list, Qt::Key_Down);
        QVERIFY(timer.elapsed() < 1000);
        QVERIFY(!opened.button(u"releaseJobs"_s)->isEnabled());
        const bool isSaid = QTest::qWaitFor([&] { return !opened.message().isEmpty(); }, 10000);
        const QString message = opened.message();
        opened.select(job);
        const bool isUsable = opened.button(u"releaseJobs"_s)->isEnabled();
        timer.start();
        opened.click(u"closeJobs"_s);
        const bool isClosed = timer.elapsed() < 1000 && !opened.window->isVisible();
        cupsd_.thaw();
        QVERIFY(isSaid && isUsable && isClosed);
        QVERIFY2(message.startsWith(u"Job %1 (a photo.jpg) could not be canceled: "_s.arg(job)) &&
                     message.contains(u"in time"_s),
                 qPrintable(message));
    }

    void onlyForQueues()
    {
        const OpenedDialog builtIn(setupFor(PanelMode::Constraint));
        QVERIFY(!builtIn.isSeen(u"jobs"_s));
        QCOMPARE(inWindow(builtIn.find<QWidget>(u"printer"_s)).right(),
                 inWindow(builtIn.find<QWidget>(u"browse"_s)).right());
    }

    // A run that ends with waiting jobs leads to them; they are not printed once more.
    void afterARun()
    {
        PrintDialogSetup setup = setupForPrinter(PanelMode::Constraint, u"photo"_s);
        setup.options = {{u"job-hold-until"_s, u"indefinite"_s}};
        setup.photos.append(setup.photos.constFirst());
        const OpenedDialog opened(setup);
        opened.dialog->searchPrinters();
        QVERIFY(showsReady(opened, u"photo"_s));
        opened.dialog->print();
        QTRY_COMPARE_WITH_TIMEOUT(opened.message(), u"Printed 0 of 2 photos. Waiting at the printer: 2."_s,
                                  20000);
        QCOMPARE(opened.find<QPushButton>(u"messageAction"_s)->text(), u"Jobs…"_s);
        QVERIFY(!opened.find<QPushButton>(u"messageAction2"_s));
        opened.click(u"messageAction"_s);
        QTRY_VERIFY(opened.find<QTreeView>(u"jobList"_s));
        QTRY_COMPARE(opened.find<QTreeView>(u"jobList"_s)->model()->rowCount(), 2);
    }

private:
    /// The window of jobs above the dialog, which shows the queue.
    struct Opened
    {
        Opened()
            : opened(setupForPrinter(PanelMode::Constraint, u"odd"_s))
            , dialog(*opened.dialog)
        {
            dialog.searchPrinters();
            if (!showsReady(opened, u"odd"_s))
                qFatal("%s", qPrintable(opened.message()));
            opened.click(u"jobs"_s);
            window = dialog.findChild<JobsWindow *>();
            list = window->findChild<QTreeView *>(u"jobList"_s);
            if (!QTest::qWaitForWindowActive(window))
                qFatal("the window of jobs did not come up");
        }

        QAbstractButton *button(const QString &name) const
        {
            return window->findChild<QAbstractButton *>(name);
        }
        void click(const QString &name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
        QString message() const { return window->findChild<MessageBar *>()->text(); }
        /// "title: state|title: state"
        QString states() const
        {
            QStringList all;
            for (int row = 0; row < list->model()->rowCount(); ++row)
                all.append(text(row, 0) + u": "_s + text(row, 2));
            return all.join(u'|');
        }
        QString cell(int job, int column) const
        {
            return rowOf(job) < 0 ? QString() : text(rowOf(job), column);
        }
        void select(int job) const
        {
            const QModelIndex index = list->model()->index(rowOf(job), 0);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
        }

        OpenedDialog opened;
        PrintDialog &dialog;
        JobsWindow *window = nullptr;
        QTreeView *list = nullptr;

    private:
        QString text(int row, int column) const
        {
            return list->model()->index(row, column).data().toString();
        }
        int rowOf(int job) const
        {
            const QList<OwnJob> &jobs = static_cast<JobsModel *>(list->model())->jobs();
            const auto found = std::ranges::find(jobs, job, &OwnJob::id);
            return found == jobs.end() ? -1 : static_cast<int>(found - jobs.begin());
        }
    };

    /// A job on the queue "odd"; its id.
    static int send(const QString &title, const QString &hold = {})
    {
        PrintJob job;
        job.destination = u"odd"_s;
        if (!hold.isEmpty())
            job.options.insert(u"job-hold-until"_s, hold);
        const auto id = JobSubmission().send(job, {"bytes", "image/jpeg", title});
        if (!id)
            qFatal("%s", qPrintable(id.failure().text));
        return *id;
    }
};

CORVEL_WIDGETS_TEST(JobsWindowTest)
#include "JobsWindowTest.moc"
