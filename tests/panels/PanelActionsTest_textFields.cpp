// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltPanel.h"
#include "LVCorvelMainPDE.h"
#include "PanelActionsTest.h"
#include "PanelHarness.h"

#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

void PanelActionsTest::typing_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("recorded");
    QTest::addColumn<int>("slider");
    QTest::addColumn<int>("beeps");
    const QString no;
    QTest::newRow("12") << "12" << no << "12" << 12 << 0;
    QTest::newRow("lone minus") << "-" << no << "-" << 0 << 0;
    QTest::newRow("-1") << "-1" << no << "-1" << -1 << 0;
    QTest::newRow("leading zero") << "012" << no << "12" << 12 << 0;
    QTest::newRow("150 beeps at its last digit") << "150" << no << "15" << 15 << 1;
    QTest::newRow("letters are 0") << "abc" << no << "0" << 0 << 0;
    QTest::newRow("a point is taken away at once") << "1.5" << no << "15" << 15 << 0;
    QTest::newRow("3.7") << "3.7" << no << "3" << 3 << 1;
    QTest::newRow("ends of the range") << "25" << no << "25" << 25 << 0;
    QTest::newRow("pasted 3.7") << no << "3.7"
                                << "3" << 3 << 0;
    QTest::newRow("pasted 150") << no << "150"
                                << "0" << 0 << 1;
    QTest::newRow("pasted -26") << no << "-26"
                                << "0" << 0 << 1;
    QTest::newRow("pasted 7 apples") << no << " 7 apples"
                                     << "7" << 7 << 0;
}

void PanelActionsTest::typing()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(QString, keys);
    QFETCH(QString, pasted);
    QFETCH(QString, recorded);
    QFETCH(int, slider);
    QFETCH(int, beeps);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    QLineEdit *field = dialog.field(81);
    dialog.type(81, keys);
    if (!pasted.isEmpty()) {
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keySequence(field, QKeySequence::Paste);
    }
    QCOMPARE(panel->recorded(QStringLiteral("Red")), recorded);
    QCOMPARE(field->text(), recorded);
    QCOMPARE(dialog.slider(1)->value(), slider);
    QCOMPARE(dialog.feedback->beeps, beeps);
    if (beeps == 0) {
        QCOMPARE(field->toolTip(), recorded);
        QCOMPARE(dialog.slider(1)->toolTip(), recorded);
    }
    // A number that is as the panel writes it is left under the user's cursor.
    dialog.type(81, QStringLiteral("15"));
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClick(field, Qt::Key_Minus);
    QCOMPARE(field->text(), QStringLiteral("-15"));
    QCOMPARE(field->cursorPosition(), 1);
    // Emptied, the field is 0 at once.
    dialog.type(81, QString());
    QTest::keyClick(field, Qt::Key_Delete);
    QCOMPARE(field->text(), QStringLiteral("0"));
    QCOMPARE(panel->recorded(QStringLiteral("Red")), QStringLiteral("0"));
}

void PanelActionsTest::returnEndsEditingThenActs_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("recorded");
    QTest::newRow("number") << "7" << int(Qt::Key_Return) << "7";
    QTest::newRow("lone minus") << "-" << int(Qt::Key_Return) << "0";
    QTest::newRow("keypad") << "8" << int(Qt::Key_Enter) << "8";
}

void PanelActionsTest::returnEndsEditingThenActs()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(QString, keys);
    QFETCH(int, key);
    QFETCH(QString, recorded);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    dialog.type(81, keys);
    panel->events.clear();
    QTest::keyClick(dialog.field(81), Qt::Key(key));
    QCOMPARE(panel->events, QStringList({QStringLiteral("end"), QStringLiteral("change")}));
    QCOMPARE(panel->recorded(QStringLiteral("Red")), recorded);
    QCOMPARE(dialog.printed, 0);
    QVERIFY(dialog.window.isVisible());
    QTest::keyClick(dialog.slider(1), Qt::Key_Return);
    QCOMPARE(dialog.printed, 1); // from elsewhere, Return is the default button's
}

void PanelActionsTest::leavingTheField()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    dialog.type(81, QStringLiteral("-"));
    panel->events.clear();
    QTest::keyClick(dialog.field(81), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), dialog.control(2));
    QCOMPARE(panel->events, QStringList(QStringLiteral("end")));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("0"));
    QCOMPARE(panel->recorded(QStringLiteral("Red")), QStringLiteral("-"));
    // Leaving a field that was not typed in is no end of editing; that the panel has rewritten what was typed
    // makes no difference.
    dialog.field(81)->setFocus();
    dialog.field(82)->setFocus();
    QCOMPARE(panel->events.size(), 1);
    dialog.type(81, QStringLiteral("1."));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("1"));
    panel->events.clear();
    dialog.field(82)->setFocus();
    QCOMPARE(panel->events, QStringList(QStringLiteral("end")));
}

void PanelActionsTest::refusal()
{
    QFETCH_GLOBAL(Mode, mode);
    if (mode == Mode::Settings)
        return; // nobody refuses
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    dialog.type(81, QStringLiteral("3"));
    dialog.mark(QStringLiteral("Red"), QStringLiteral("-4")); // the print system's mark wins over the record
    dialog.constraints->refused << QStringLiteral("Red");
    dialog.log.clear();
    dialog.type(81, QStringLiteral("7"));
    QCOMPARE(dialog.log, QStringList(QStringLiteral(
                             "The print system rejected the user selected choice 7 for PPD Option Red")));
    QCOMPARE(dialog.feedback->beeps, 1);
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("-4"));
    QCOMPARE(dialog.slider(1)->value(), -4);
    QCOMPARE(panel->recorded(QStringLiteral("Red")), QStringLiteral("3"));
    QVERIFY(!panel->markChoiceForPPDOptionKeyFromSender(QStringLiteral("5"), QStringLiteral("Red"), nullptr));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("-4"));
    // So it is for a number out of range: the mark, not the record; and it is not even offered.
    const auto offers = dialog.constraints->offers;
    dialog.field(81)->setText(QStringLiteral("99"));
    panel->changePrinterSetting(dialog.field(81));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("-4"));
    QCOMPARE(dialog.constraints->offers, offers);
}

void PanelActionsTest::numbersOutOfRange_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<bool>("withSlider");
    QTest::newRow("between tick marks") << "7" << true << true;
    QTest::newRow("half a step") << "24.5" << true << true;
    QTest::newRow("just above") << "25.01" << false << true;
    QTest::newRow("below") << "-26" << false << true;
    QTest::newRow("huge") << "1e999" << false << true;
    QTest::newRow("no number") << "nan" << true << true;
    QTest::newRow("no slider, 0") << "0" << true << false;
    QTest::newRow("no slider, minus") << "-" << true << false;
    QTest::newRow("no slider, 1") << "1" << false << false;
    QTest::newRow("no slider, -1") << "-1" << false << false;
}

void PanelActionsTest::numbersOutOfRange()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(QString, choice);
    QFETCH(bool, accepted);
    QFETCH(bool, withSlider);
    PanelHarness dialog(mode);
    auto panel = dialog.make<BuiltPanel>();
    const QString key = QStringLiteral("Key5");
    QLineEdit *field = panel->add<QLineEdit>(85);
    if (withSlider) {
        auto *slider = panel->add<QSlider>(5);
        slider->setRange(-25, 25);
        slider->setTickInterval(5);
    } else {
        pdekit::setTag(field, 5); // finds itself, which has no range
    }
    panel->setChoiceForKey(QStringLiteral("0"), key);
    field->setText(choice);
    // Only a missing choice, a missing key or the print system makes it false.
    QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(choice, key, field));
    QCOMPARE(panel->recorded(key), accepted ? choice : QStringLiteral("0"));
    QCOMPARE(field->text(), accepted ? choice : QStringLiteral("0"));
    QCOMPARE(dialog.feedback->beeps, accepted ? 0 : 1);
}

void PanelActionsTest::choiceOrKeyMissing()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    dialog.type(81, QStringLiteral("5"));
    const auto before = panel->choiceDict_;
    dialog.field(81)->setText(QStringLiteral("8"));
    QVERIFY(
        !panel->markChoiceForPPDOptionKeyFromSender(std::nullopt, QStringLiteral("Red"), dialog.field(81)));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("5"));
    QVERIFY(!panel->markChoiceForPPDOptionKeyFromSender(QStringLiteral("8"), std::nullopt, dialog.field(81)));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("5"));
    QCOMPARE(dialog.feedback->beeps, 2);
    QVERIFY(panel->choiceDict_ == before);
}
