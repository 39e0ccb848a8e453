// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterChooser.h"
#include "QueueTest.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>

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

    // Among many printers, by any part of its words; what is typed is never a printer itself.
    void manyAreSearched_data()
    {
        addRows<QString, QString>({
            {"name", u"queue17"_s, u"queue17"_s},
            {"place", u"room 5"_s, u"queue5"_s},
            {"model", u"MODEL 9"_s, u"queue9"_s},
            {"none", u"no such"_s, u"built-in"_s},
            {"nothing", u" "_s, u"built-in"_s},
        });
    }

    void manyAreSearched()
    {
        const auto [typed, found] = row<QString, QString>();
        const OpenedDialog opened;
        auto *printers = opened.find<PrinterChooser>(u"printer"_s);
        for (int i = 1; i < 20; ++i) {
            QCOMPARE(printers->isEditable(), i > 12);
            Queue queue;
            queue.name = u"queue%1"_s.arg(i);
            queue.location = u"Room %1"_s.arg(i);
            queue.makeAndModel = u"Model %1"_s.arg(i);
            printers->recall(queue, PrinterSelection::State::Open);
        }
        printers->setCurrentIndex(0);
        QLineEdit *field = printers->lineEdit();
        QVERIFY(!field->accessibleName().isEmpty() && !field->accessibleDescription().isEmpty());
        printers->setFocus();
        field->selectAll();
        QTest::keyClicks(field, typed);
        if (!typed.trimmed().isEmpty())
            QCOMPARE(printers->completer()->popup()->isVisible(), found != u"built-in"_s);
        const QString before = printers->current().id();
        QCOMPARE(before, u"built-in"_s); // not before it is chosen
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(printers->current().id(), found);
        QCOMPARE(printers->currentText(), printers->itemText(printers->currentIndex()));
        QCOMPARE(printers->count(), 20);
        QVERIFY(!opened.hasPrinted());
        field->selectAll();
        QTest::keyClicks(field, u"x"_s);
        opened.find<QWidget>(u"copies"_s)->setFocus();
        QCOMPARE(printers->currentText(), printers->itemText(printers->currentIndex()));
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
