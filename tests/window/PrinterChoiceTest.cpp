// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueTest.h"
#include "TestMain.h"

using namespace testing_support;

/// The dialog with queues of a real print server, and what it keeps for each printer.
class PrinterChoiceTest : public QueueTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }

    void settingsAreKeptForTheirPrinter()
    {
        PrintDialogSetup setup = setupFor(mode_);
        setup.options = {{u"Quality"_s, u"Fine"_s}, {u"Overcoat"_s, u"Matte"_s}};
        {
            const OpenedDialog opened(setup);
            opened.type(81, u"9"_s);
            opened.click(u"save"_s);
            opened.type(81, u"10"_s);
        }
        {
            const OpenedDialog again(mode_);
            QCOMPARE(again.fieldText(81), u"9"_s);
            again.dialog->showPage(2);
            QVERIFY(again.find<QRadioButton>(u"matte"_s)->isChecked());
            QVERIFY(again.prints());
            QCOMPARE(again.printed(u"Overcoat"_s), u"Matte"_s);
        }
        const OpenedDialog other(setupForPrinter(mode_, u"built-in"_s));
        other.dialog->searchPrinters();
        choose(other, u"photo"_s);
        QCOMPARE(other.fieldText(81), u"0"_s);
        choose(other, u"built-in"_s);
        QCOMPARE(other.fieldText(81), u"9"_s);
    }

    // Before the queue is found nothing can be printed: it would come out somewhere else.
    void printsOnTheQueueAskedFor()
    {
        PrintDialogSetup setup = setupForPrinter(mode_, u"photo"_s);
        setup.options = {{u"Red"_s, u"12"_s}};
        const OpenedDialog opened(setup);
        QCOMPARE(opened.find<QComboBox>(u"printer"_s)->currentIndex(), -1);
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
        QVERIFY(opened.dialog->whyNotReady().contains(u"photo"_s));

        opened.dialog->searchPrinters();
        QVERIFY(showsReady(opened, u"photo"_s));
        QVERIFY(!opened.isSeen(u"folder"_s));
        QCOMPARE(opened.fieldText(81), u"12"_s);
        QTest::keyClick(opened.dialog.get(), Qt::Key_Enter);
        QTRY_VERIFY(opened.message().contains(u"Printed"_s));
        QVERIFY2(cupsd_.waitForJob(jobOf(opened)), qPrintable(opened.message()));
        QVERIFY(hasOption(jobOf(opened), "Red=12") && !opened.hasPrinted());
        choose(opened, u"built-in"_s);
        QCOMPARE(opened.fieldText(81), u"0"_s); // the options were for the other one
    }

    void defaultQueueTakesTheOptions()
    {
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
        PrintDialogSetup setup = setupForPrinter(mode_);
        setup.options = {{u"Red"_s, u"12"_s}};
        const OpenedDialog opened(setup);
        QCOMPARE(opened.fieldText(81), u"12"_s);
        opened.dialog->searchPrinters();
        QVERIFY(showsReady(opened, u"photo"_s));
        QCOMPARE(opened.fieldText(81), u"12"_s);
    }

    void unknownQueue()
    {
        const OpenedDialog opened(setupForPrinter(PanelMode::Constraint, u"nowhere"_s));
        opened.dialog->searchPrinters();
        QTRY_VERIFY(opened.message().contains(u"\"nowhere\""_s));
        QVERIFY(!opened.dialog->isReady());
        // It may come later.
        QVERIFY(cupsd_.addQueue(u"nowhere"_s, ppd_));
        QVERIFY(showsReady(opened, u"nowhere"_s));
        QCOMPARE(opened.message(), QString());
        QVERIFY(cupsd_.deleteQueue(u"nowhere"_s));
    }

private:
    // As a user does: the list has the queue when it was found.
    static void choose(const OpenedDialog &opened, const QString &printer)
    {
        auto *chooser = opened.find<QComboBox>(u"printer"_s);
        chooser->setFocus();
        QTRY_VERIFY(chooser->count() > 1);
        QTest::keyClick(chooser, printer == u"built-in"_s ? Qt::Key_Home : Qt::Key_End);
        QVERIFY(showsReady(opened, printer));
    }
};

CORVEL_WIDGETS_TEST(PrinterChoiceTest)
#include "PrinterChoiceTest.moc"
