// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomChoice.h"
#include "OpenedDialog.h"
#include "PresetStore.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

using namespace testing_support;

/// The dialog's own page, for a laser printer's PPD that no plug-in knows.
class OptionPageTest : public WindowTest
{
    Q_OBJECT

    OpenedDialog open(const QList<QPair<QString, QString>> &options = {}) const
    {
        PrintDialogSetup setup = setupFor(mode_);
        setup.ppdFile = QStringLiteral(CORVEL_LASER_PPD);
        setup.options = options;
        return OpenedDialog(setup);
    }
    /// Chooses the item of the text by keys.
    static void choose(const OpenedDialog &opened, const QString &option, const QString &text)
    {
        auto *list = opened.find<QComboBox>(option);
        list->setFocus();
        const int wanted = list->findText(text, Qt::MatchStartsWith);
        QVERIFY2(wanted >= 0, qPrintable(option));
        while (list->currentIndex() != wanted) {
            const int before = list->currentIndex();
            QTest::keyClick(list, before < wanted ? Qt::Key_Down : Qt::Key_Up);
            if (list->currentIndex() == before)
                return; // refused
        }
    }
    static QLineEdit *field(const OpenedDialog &opened, const QString &option)
    {
        QLineEdit *last = nullptr;
        for (QLineEdit *each : opened.dialog->findChildren<QLineEdit *>(option))
            last = last ? last : each;
        return last;
    }
    static void type(QLineEdit *field, const QString &text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    static QStringList summaryOf(const OpenedDialog &opened)
    {
        opened.dialog->showPage(opened.dialog->pageCount() - 1);
        const auto *tree = opened.dialog->findChild<QTreeWidget *>();
        QStringList lines;
        for (int i = 0; i < tree->model()->rowCount(); ++i)
            lines += tree->model()->index(i, 0).data().toString() + u": "_s +
                     tree->model()->index(i, 1).data().toString();
        opened.dialog->showPage(0);
        return lines;
    }

private Q_SLOTS:
    void initTestCase_data() { addModes(); }

    // In the PPD's order and groups, by the controls that people expect.
    void showsEveryOption()
    {
        const OpenedDialog opened = open();
        QStringList found;
        QStringList texts;
        for (const QLabel *label : opened.dialog->findChildren<QLabel *>()) {
            if (label->property("isHeading").toBool())
                found += label->text();
            texts += QString(label->text()).remove(u'&');
        }
        QCOMPARE(found, (QStringList{u"Paper Handling"_s, u"Quality"_s, u"Finishing"_s}));
        for (const QString &label : {u"Paper Source"_s, u"Toner Density"_s})
            QVERIFY2(texts.contains(label), qPrintable(label));
        QVERIFY(opened.find<QCheckBox>(u"TonerSave"_s) && opened.find<QComboBox>(u"Resolution"_s));
        QCOMPARE(opened.dialog->findChildren<QCheckBox *>(u"Finish"_s).size(), 3); // none: no box checked
        for (const QString &hidden : {u"PageRegion"_s, u"Tray2Installed"_s})
            QVERIFY2(opened.dialog->findChildren<QWidget *>(hidden).isEmpty(), qPrintable(hidden));
        QVERIFY(!opened.isSeen(u"optionSearch"_s));
    }

    // What is chosen is printed, shown in the summary, undone, put back, and kept for the next time.
    void choicesTakeTheSameRoad()
    {
        const OpenedDialog opened = open({{u"OutputBin"_s, u"Lower"_s}});
        QCOMPARE(opened.find<QComboBox>(u"OutputBin"_s)->currentText(), u"Lower"_s);
        choose(opened, u"Resolution"_s, u"1200"_s);
        opened.find<QCheckBox>(u"TonerSave"_s)->click();
        for (QCheckBox *box : opened.dialog->findChildren<QCheckBox *>(u"Finish"_s).first(2))
            box->click();
        QVERIFY(summaryOf(opened).contains(u"Finishing: Staple, Punch"_s));
        QVERIFY(opened.prints());
        QCOMPARE(opened.printed(u"OutputBin Resolution TonerSave Finish"_s),
                 u"Lower 1200dpi True Staple,Punch"_s);

        opened.undo();
        opened.undo();
        QCOMPARE(opened.dialog->findChildren<QCheckBox *>(u"Finish"_s).constFirst()->isChecked(), false);
        opened.undo();
        QVERIFY(!opened.find<QCheckBox>(u"TonerSave"_s)->isChecked());
        opened.redo();
        QVERIFY(opened.find<QCheckBox>(u"TonerSave"_s)->isChecked());
        // What differs from the printer's default can be put back on its own.
        auto *reset = opened.find<QToolButton>(u"Resolution.reset"_s);
        QVERIFY(reset->isVisible() && reset->accessibleName().contains(u"600 dpi"_s));
        QVERIFY(!opened.isSeen(u"MediaType.reset"_s));
        QTest::mouseClick(reset, Qt::LeftButton);
        QVERIFY(!reset->isVisible());
        QCOMPARE(opened.find<QComboBox>(u"Resolution"_s)->currentText(), u"600 dpi"_s);
        opened.undo();
        QCOMPARE(opened.find<QComboBox>(u"Resolution"_s)->currentText(), u"1200 dpi"_s);
    }

    // A conflict is explained at its control; what the equipment rules out cannot be chosen at all.
    void refusesWhatDoesNotGo()
    {
        const OpenedDialog opened = open();
        const auto *trays = opened.find<QComboBox>(u"InputSlot"_s);
        const auto *items = qobject_cast<const QStandardItemModel *>(trays->model());
        const QStandardItem *tray = items->item(2);
        QVERIFY(!tray->isEnabled() && items->item(1)->isEnabled());
        QCOMPARE(tray->text(), u"Tray 2 (Tray 2: Not Installed)"_s);
        choose(opened, u"MediaType"_s, u"Transparency"_s);
        opened.dialog->showPage(1); // with what every job can have
        choose(opened, u"Duplex"_s, u"Long"_s);
        if (mode_ == PanelMode::Settings) {
            opened.dialog->print();
            QVERIFY(!opened.hasPrinted());
        } else {
            QCOMPARE(feedback_->beeps, 1);
            QCOMPARE(opened.find<QComboBox>(u"Duplex"_s)->currentText(), u"Off"_s);
        }
        QCOMPARE(opened.message(),
                 u"\"Two-Sided\" cannot be \"Long Edge\" while \"Paper Type\" is \"Transparency\"."_s);
    }

    void customValues_data()
    {
        // The option, the field's text, what is printed, and what the field shows in the end.
        addRows<QString, QString, QString, QString>({
            {"real", u"Sharp"_s, u"2,5"_s, u"Custom.2.5"_s, u"2.5"_s},
            {"real, the smallest", u"Sharp"_s, u""_s, u"Custom.0"_s, u"0"_s},
            {"real, too large", u"Sharp"_s, u"9"_s, u"Custom.0"_s, u"0"_s},
            {"not a number", u"Sharp"_s, u"nan"_s, u"Custom.0"_s, u"0"_s},
            {"length", u"Indent"_s, u"10"_s, u"Custom.28.35"_s, u"10"_s},
            {"text", u"Banner"_s, u"For \"A, B\"=C"_s, u"Custom.For \"A, B\"=C"_s, u"For \"A, B\"=C"_s},
            {"two values", u"Stamp"_s, u"Top secret"_s, u"{Label='Top secret' Angle=0}"_s, u"Top secret"_s},
        });
    }

    void customValues()
    {
        const auto [option, typed, printed, shown] = row<QString, QString, QString, QString>();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::Germany));
        const auto back = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
        const OpenedDialog opened = open();
        choose(opened, option, u"Custom"_s);
        QLineEdit *edit = field(opened, option);
        QVERIFY(edit->isVisible());
        type(edit, typed);
        opened.find<QWidget>(u"copies"_s)->setFocus();
        QCOMPARE(QString(edit->text()).replace(u',', u'.'),
                 QString(shown).replace(u"A. B"_s, u"A, B"_s).replace(u',', u'.'));
        QVERIFY(opened.prints());
        QCOMPARE(opened.printed(option), printed);
    }

    void customPage_data()
    {
        // The field, its text, what is printed from the A4 that it begins with, what is said at the field.
        const QString sizeSaid = u"The height can be from 105.8 mm to 423.3 mm."_s;
        addRows<QString, QString, QString, QString>({
            {"a decimal point", u"pageWidth"_s, u"100.5"_s, u"Custom.100.5x297mm"_s, u""_s},
            {"a decimal comma", u"pageHeight"_s, u"150,25"_s, u"Custom.209.9x150.25mm"_s, u""_s},
            {"the end of the range", u"pageHeight"_s, u"423.3"_s, u"Custom.209.9x423.3mm"_s, u""_s},
            {"too large", u"pageHeight"_s, u"424"_s, u"Custom.209.9x297mm"_s, sizeSaid},
            {"too small", u"pageHeight"_s, u"1"_s, u"Custom.209.9x297mm"_s, sizeSaid},
            {"not a number", u"pageHeight"_s, u"nan"_s, u"Custom.209.9x297mm"_s, sizeSaid},
            {"nothing", u"pageHeight"_s, u""_s, u"Custom.209.9x297mm"_s, u""_s},
        });
    }

    void customPage()
    {
        const auto [name, typed, printed, said] = row<QString, QString, QString, QString>();
        const OpenedDialog opened = open();
        QVERIFY(!opened.isSeen(name));
        const auto *sizes = opened.chooseLast(u"pageSize"_s);
        auto *edit = opened.find<QLineEdit>(name);
        QCOMPARE(QApplication::focusWidget(), opened.find<QWidget>(u"pageWidth"_s));
        QVERIFY(edit->isVisible() && edit->accessibleDescription().startsWith(u"from "_s));
        type(edit, typed);
        if (typed.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(!opened.hasPrinted());
        QCOMPARE(opened.message(), said);
        QCOMPARE(sizes->count(), 7); // five sizes, the custom one, and the item for another one
        const auto points = customPagePoints(printed);
        QCOMPARE(sizes->currentText(), pageSizeText(*points));
        QVERIFY(summaryOf(opened).contains(u"Paper size: "_s + pageSizeText(*points)));
        QVERIFY(opened.prints());
        QCOMPARE(opened.printed(u"PageSize"_s), printed);
        QFile pdf(opened.folder.filePath(u"out/sample.pdf"_s));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const auto box = QRegularExpression(u"/MediaBox ?\\[ ?0 0 ([0-9.]+) ([0-9.]+)"_s)
                             .match(QString::fromLatin1(pdf.readAll()));
        QVERIFY(qAbs(box.captured(1).toDouble() - points->width()) < 1 &&
                qAbs(box.captured(2).toDouble() - points->height()) < 1);
    }

    // Also when it comes from elsewhere than the fields, in any unit; and no longer than it is chosen.
    void customPageIsListedWhileChosen()
    {
        const OpenedDialog opened = open({{u"PageSize"_s, u"Custom.4.2x6in"_s}});
        auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
        auto *width = opened.find<QLineEdit>(u"pageWidth"_s);
        const QString first = pageSizeText({302.4, 432});
        QCOMPARE(sizes->currentText(), first);
        type(opened.find<QLineEdit>(u"pageHeight"_s), u"200"_s);
        QCOMPARE(sizes->currentData(), u"Custom.106.68x200mm"_s); // the width is shown rounded, kept exactly
        opened.undo();
        for (const QString &digits : {u"10"_s, u"100"_s, u"1"_s, u"120"_s}) // one act
            type(width, digits);
        QCOMPARE(sizes->currentText(), u"120 × 152.4 mm"_s);
        width->setFocus();
        opened.undo();
        QCOMPARE(sizes->currentText(), first);
        QCOMPARE(width->text(), u"106.7"_s);
        sizes->setFocus();
        QTest::keyClick(sizes, Qt::Key_Home);
        QVERIFY(!width->isVisible() && sizes->findText(first) < 0);
        QCOMPARE(sizes->count(), 6);
        opened.undo();
        QCOMPARE(sizes->currentText(), first);
        opened.click(u"save"_s);
        QVERIFY2(opened.message().contains(u"saved"_s), qPrintable(opened.message()));
        QCOMPARE(open().find<QComboBox>(u"pageSize"_s)->currentText(), first);
    }

    // What a plug-in's panel handles and does not show for this model: chosen on the dialog's page it is
    // saved by both, and the panel's own defaults reach the page.
    void retiredOptionsAreOnThePage()
    {
        PrintDialogSetup setup = setupFor(mode_);
        setup.ppdFile.reset(); // the model without a choice of the finish in its panel
        const OpenedDialog opened(setup);
        opened.dialog->showPage(2);
        QVERIFY(!opened.isSeen(u"matte"_s));
        opened.click(u"fine"_s); // which a matte finish needs
        opened.dialog->showPage(3);
        choose(opened, u"Overcoat"_s, u"Matte"_s);
        choose(opened, u"MatteValue"_s, u"5"_s);
        QVERIFY(opened.prints());
        QCOMPARE(opened.printed(u"Overcoat MatteValue"_s), u"Matte 5"_s);
        opened.undo();
        QCOMPARE(opened.find<QComboBox>(u"MatteValue"_s)->currentText(), u"4"_s); // one key less
        opened.dialog->showPage(2);
        QTest::mouseClick(opened.control(16), Qt::LeftButton); // the panel's defaults
        opened.dialog->showPage(3);
        QCOMPARE(opened.find<QComboBox>(u"Overcoat"_s)->currentText(), u"Glossy"_s);
        opened.undo();
        QCOMPARE(opened.find<QComboBox>(u"Overcoat"_s)->currentText(), u"Matte"_s);
    }

    // An empty field is not a choice.
    void customChoiceIsGivenUp()
    {
        const OpenedDialog opened = open();
        auto *list = opened.find<QComboBox>(u"Banner"_s);
        choose(opened, u"Banner"_s, u"Custom"_s);
        QVERIFY(field(opened, u"Banner"_s)->hasFocus());
        opened.find<QWidget>(u"copies"_s)->setFocus();
        QTRY_COMPARE(list->currentText(), u"None"_s);
    }

    // A PIN is sent and nowhere else.
    void secretsStaySecret()
    {
        const QString pin = u"739214"_s;
        const OpenedDialog opened = open();
        choose(opened, u"JobCode"_s, u"Custom"_s);
        QLineEdit *edit = field(opened, u"JobCode"_s);
        QCOMPARE(edit->echoMode(), QLineEdit::Password);
        type(edit, pin);
        QVERIFY(summaryOf(opened).contains(u"Locked Print: entered, not shown"_s));
        opened.click(u"save"_s);
        QVERIFY(opened.prints());
        QVERIFY(opened.printed(u"JobCode"_s).isEmpty());
        for (const QString &folder : {config_->path(), opened.folder.path()}) {
            for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly) && !file.readAll().contains(pin.toLatin1()));
            }
        }
        // Too short a one does not count, nor does what was typed before it.
        edit->setFocus();
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(edit, Qt::Key_Backspace);
        opened.find<QWidget>(u"copies"_s)->setFocus();
        QVERIFY(edit->text().isEmpty());
        QTRY_VERIFY(opened.find<QWidget>(u"print"_s)->isEnabled());
        opened.dialog->print();
        QVERIFY2(opened.message().contains(u"\"Locked Print\" lacks"_s), qPrintable(opened.message()));
    }

    // A thousand options are shown at once, found by their texts, and chosen from like ten.
    void manyOptions()
    {
        QFile laser(QStringLiteral(CORVEL_LASER_PPD));
        QVERIFY(laser.open(QIODevice::ReadOnly));
        QByteArray ppd = laser.readAll() + "*OpenGroup: Many/Many\n";
        for (int i = 0; i < 1000; ++i) {
            const QByteArray key = "Many" + QByteArray::number(i);
            ppd += "*OpenUI *" + key + "/Setting number " + QByteArray::number(i) + ": PickOne\n*Default" +
                   key + ": A\n*" + key + " A/First: \"\"\n*" + key + " B/Second: \"\"\n*CloseUI: *" + key +
                   "\n";
        }
        ppd += "*CloseGroup: Many\n";
        QFile file(config_->filePath(u"many.ppd"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(ppd) == ppd.size());
        file.close();
        PrintDialogSetup setup = setupFor(mode_);
        setup.ppdFile = file.fileName();
        const OpenedDialog opened(setup);
        QTRY_VERIFY(opened.find<QComboBox>(u"Many999"_s));
        auto *search = opened.find<QLineEdit>(u"optionSearch"_s);
        QVERIFY(search->isVisible());
        type(search, u"number 777"_s);
        const auto *found = opened.find<QComboBox>(u"Many777"_s);
        QVERIFY(found->isVisible() && !opened.isSeen(u"Resolution"_s));
        // A row that was made late is reached by keys, and watched like the first.
        QTest::keyClick(search, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), found);
        choose(opened, u"Many777"_s, u"Second"_s);
        opened.undo();
        QCOMPARE(found->currentText(), u"First"_s);
        search->clear();
        QVERIFY(opened.isSeen(u"Resolution"_s));
        // A preset's line in CUPS' file has a limit: what is not named in it is the default.
        choose(opened, u"Many778"_s, u"Second"_s);
        PresetStore store = PresetStore::builtIn();
        opened.find<QMenu>(u"presetMenu"_s)->actions().at(1)->trigger(); // save as
        type(opened.find<QLineEdit>(u"presetName"_s), u"long"_s);
        opened.press(Qt::Key_Return);
        const auto presets = store.presets();
        QVERIFY(presets && presets->size() == 1);
        QCOMPARE(presets->constFirst().options.value(u"Many778"_s), u"B"_s);
        QVERIFY(!presets->constFirst().options.contains(u"Many777"_s));
    }
};

CORVEL_WIDGETS_TEST(OptionPageTest)
#include "OptionPageTest.moc"
