// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelActionsTest.h"

#include "BuiltPanel.h"
#include "LVCorvelMainPDE.h"
#include "PanelHarness.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

namespace {

QPoint indicatorOf(const QWidget *box)
{
    return {8, box->height() / 2};
}

} // namespace

void PanelActionsTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

void PanelActionsTest::movingTheSlider()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    QSlider *slider = dialog.slider(4);
    const auto showsItsValue = [&] {
        const QString value = QString::number(slider->value());
        return panel->recorded(QStringLiteral("Brightness")) == value && dialog.field(84)->text() == value &&
               dialog.field(84)->toolTip() == value;
    };
    const QPoint handle = slider->rect().center();
    QTest::mousePress(slider, Qt::LeftButton, {}, handle);
    QTest::mouseMove(slider, handle + QPoint(20, 0));
    const int onTheWay = slider->value();
    QVERIFY(onTheWay > 0);
    QVERIFY(showsItsValue()); // while the button is still down
    QTest::mouseRelease(slider, Qt::LeftButton, {}, handle + QPoint(20, 0));
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(slider->value(), onTheWay - 1);
    QVERIFY(showsItsValue());
    QWheelEvent wheel(handle, slider->mapToGlobal(handle), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(slider, &wheel);
    QVERIFY(slider->value() != onTheWay - 1);
    QVERIFY(showsItsValue());
    // A refused position goes back, also under the user's hand.
    if (dialog.constraints) {
        const int before = slider->value();
        dialog.constraints->refused << QStringLiteral("Brightness");
        QTest::keyClick(slider, Qt::Key_Home);
        QCOMPARE(slider->value(), before);
        QCOMPARE(dialog.feedback->beeps, 1);
        QVERIFY(showsItsValue());
    }
}

void PanelActionsTest::enablerAndDefaultsButton()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    QWidget *enabler = dialog.control(32);
    const QString key = QStringLiteral("AdjustmentsEnabled");
    const auto enabledControls = [&] {
        int count = 0;
        for (const int tag : {1, 2, 3, 4, 5, 6, 7, 81, 82, 83, 84, 85, 86, 87})
            count += dialog.control(tag)->isEnabled();
        return count;
    };
    QCOMPARE(enabledControls(), 14);
    dialog.type(87, QStringLiteral("-9"));
    QTest::mouseClick(enabler, Qt::LeftButton, {}, indicatorOf(enabler));
    QCOMPARE(enabledControls(), 0);
    QCOMPARE(panel->recorded(key), QStringLiteral("False"));
    QVERIFY(enabler->isEnabled() && dialog.control(16)->isEnabled());
    enabler->setFocus();
    QTest::keyClick(enabler, Qt::Key_Space);
    QCOMPARE(enabledControls(), 14);
    QCOMPARE(panel->recorded(key), QStringLiteral("True"));

    QTest::keyClick(enabler, Qt::Key_Space);
    QTest::mouseClick(dialog.control(16), Qt::LeftButton);
    QCOMPARE(enabledControls(), 14);
    QCOMPARE(panel->recorded(QStringLiteral("Gamma")), QStringLiteral("0"));
    QCOMPARE(dialog.slider(7)->value(), 0);
    QCOMPARE(dialog.field(87)->text(), QStringLiteral("0"));
    if (!dialog.constraints)
        return;
    // The defaults were offered in the order of the supported keys, and a refusal puts the box back.
    QCOMPARE(dialog.constraints->offers.last(), key + QStringLiteral("=True"));
    QCOMPARE(dialog.constraints->offers.at(dialog.constraints->offers.size() - 8),
             QStringLiteral("Brightness=0"));
    dialog.constraints->refused << key;
    QTest::mouseClick(enabler, Qt::LeftButton, {}, indicatorOf(enabler));
    QCOMPARE(pdekit::state(enabler), 1);
    QCOMPARE(enabledControls(), 14);
}

void PanelActionsTest::choiceOfTheProgram()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(QStringLiteral("99"), QStringLiteral("Red"), nullptr));
    QCOMPARE(panel->recorded(QStringLiteral("Red")), QStringLiteral("99"));
    QCOMPARE(dialog.field(81)->text(), QStringLiteral("0"));
    if (dialog.constraints)
        QCOMPARE(dialog.constraints->offers, QStringList(QStringLiteral("Red=99")));
}

void PanelActionsTest::radioGroup()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, PanelHarness::ppdOption("Key1", "Standard", {"Standard", "Fine"})
                                  .prepend("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n"));
    auto panel = dialog.make<BuiltPanel>();
    panel->form = QStringLiteral("radioGroup");
    panel->keys << QStringLiteral("Key1");
    dialog.show(*panel);
    const auto cell = [&](const char *name) {
        return dialog.view->findChild<QRadioButton *>(QString::fromLatin1(name));
    };
    const QString key = QStringLiteral("Key1");
    QVERIFY(cell("standard")->isChecked());
    QVERIFY(dialog.control(1)->toolTip().isEmpty());
    QTest::mouseClick(cell("fine"), Qt::LeftButton, {}, indicatorOf(cell("fine")));
    QCOMPARE(panel->recorded(key), QStringLiteral("Fine"));
    QTest::keyClick(cell("fine"), Qt::Key_Up);
    QVERIFY(cell("standard")->isChecked());
    QCOMPARE(panel->recorded(key), QStringLiteral("Standard"));
    QCOMPARE(dialog.feedback->beeps, 0);
    // A cell that stands for no choice.
    QTest::mouseClick(cell("unknown"), Qt::LeftButton, {}, indicatorOf(cell("unknown")));
    QVERIFY(cell("standard")->isChecked());
    QCOMPARE(panel->recorded(key), QStringLiteral("Standard"));
    QCOMPARE(dialog.feedback->beeps, 1);
    // A choice that no cell stands for leaves the selection, and the tool tip is emptied.
    dialog.control(1)->setToolTip(QStringLiteral("x"));
    panel->updateControlWithValue(dialog.control(1), QStringLiteral("Draft"));
    QVERIFY(cell("standard")->isChecked());
    QVERIFY(dialog.control(1)->toolTip().isEmpty());
    QVERIFY(panel->events.size() == 3); // a program's selection is no action
}

void PanelActionsTest::mixedEnablerIsTrue()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<BuiltPanel>();
    auto *box = panel->add<QCheckBox>(32);
    auto *slider = panel->add<QSlider>(1);
    for (const auto &[state, choice] :
         {std::pair(Qt::Unchecked, "False"), std::pair(Qt::PartiallyChecked, "True"),
          std::pair(Qt::Checked, "True")}) {
        box->setTristate();
        box->setCheckState(state);
        panel->changePrinterSetting(box);
        QCOMPARE(panel->recorded(QStringLiteral("Enabler")), QString::fromLatin1(choice));
        QCOMPARE(slider->isEnabled(), state != Qt::Unchecked);
    }
    if (!dialog.constraints)
        return;
    // Refused, with no mark in the PPD to go back to: box and controls stay as the user left them.
    dialog.constraints->refused << QStringLiteral("Enabler");
    box->setCheckState(Qt::Unchecked);
    panel->changePrinterSetting(box);
    QVERIFY(!box->isChecked() && !slider->isEnabled());
}

void PanelActionsTest::sendersThatAreNoControls()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    auto panel = dialog.make<BuiltPanel>();
    panel->changePrinterSetting(panel->add<QWidget>(1));
    panel->changePrinterSetting(panel.get());
    panel->changePrinterSetting(nullptr);
    panel->sendPrinterCommand(panel->add<QPushButton>(2));
    QVERIFY(!panel->choiceDict_);
    QCOMPARE(dialog.feedback->beeps, 0);
}

QTEST_MAIN(PanelActionsTest)
