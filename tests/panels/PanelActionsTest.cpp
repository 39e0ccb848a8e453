// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltPanel.h"
#include "LVCorvelLaminationPDE.h"
#include "LVCorvelMainPDE.h"
#include "LVSharpnessCorvelPDE.h"
#include "PanelHarness.h"
#include "RKTPPRMatrixPDEcorvel.h"
#include "TestMain.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>

/// What the model of the panels does not see of the user's acts, in both modes: the widgets get real events.
class PanelActionsTest : public ModesTest
{
    Q_OBJECT

private Q_SLOTS:
    void typing()
    {
        PanelHarness dialog(mode_);
        auto panel = dialog.make<LVCorvelMainPDE>();
        dialog.show(*panel);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            dialog.type(81, text("7"));
            panel->events.clear();
            QTest::keyClick(dialog.field(81), key);
            QCOMPARE(panel->events, QStringList({text("end"), text("change")}));
            QCOMPARE(dialog.printed, 0);
            QVERIFY(dialog.window.isVisible());
        }
        QTest::keyClick(dialog.slider(1), Qt::Key_Return);
        QCOMPARE(dialog.printed, 1); // from elsewhere, Return is the default button's
        // What is typed within a number stays there, and the cursor behind it.
        dialog.type(81, text("15"));
        QTest::keyClick(dialog.field(81), Qt::Key_Home);
        QTest::keyClick(dialog.field(81), Qt::Key_Minus);
        QCOMPARE(dialog.field(81)->text(), text("-15"));
        QCOMPARE(dialog.field(81)->cursorPosition(), 1);
    }

    void movingTheSlider()
    {
        PanelHarness dialog(mode_);
        auto panel = dialog.make<LVCorvelMainPDE>();
        dialog.show(*panel);
        QSlider *slider = dialog.slider(4);
        const auto showsItsValue = [&] {
            const QString value = QString::number(slider->value());
            return panel->recorded(text("Brightness")) == value && dialog.field(84)->text() == value;
        };
        const QPoint handle = slider->rect().center();
        QTest::mousePress(slider, Qt::LeftButton, {}, handle);
        QTest::mouseMove(slider, handle + QPoint(20, 0));
        const int onTheWay = slider->value();
        QVERIFY(onTheWay > 0);
        QVERIFY(showsItsValue()); // while the button is still down
        QTest::mouseRelease(slider, Qt::LeftButton, {}, handle + QPoint(20, 0));
        QWheelEvent wheel(handle, slider->mapToGlobal(handle), {}, {0, 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &wheel);
        QVERIFY(slider->value() != onTheWay);
        QVERIFY(showsItsValue());
    }

    // Only a missing choice, a missing key or the print system makes it false.
    void answersOfMarking()
    {
        PanelHarness dialog(mode_);
        auto panel = dialog.make<LVCorvelMainPDE>();
        dialog.show(*panel);
        const QString key = text("Red");
        QLineEdit *field = dialog.field(81);
        QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(text("24.5"), key, field));
        QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(text("5"), key, field));
        QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(text("25.01"), key, field));
        QCOMPARE(panel->recorded(key), text("5"));
        QCOMPARE(field->text(), text("5"));
        const auto before = panel->choiceDict_;
        field->setText(text("8"));
        QVERIFY(!panel->markChoiceForPPDOptionKeyFromSender(text("8"), std::nullopt, field));
        QVERIFY(!panel->markChoiceForPPDOptionKeyFromSender(std::nullopt, key, field));
        QCOMPARE(field->text(), text("5"));
        QVERIFY(panel->choiceDict_ == before);
        QCOMPARE(dialog.feedback->beeps, 3);
        // A program's choice knows no range and touches no control.
        QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(text("99"), key, nullptr));
        QCOMPARE(panel->recorded(key), text("99"));
        QCOMPARE(field->text(), text("5"));
        if (!dialog.constraints)
            return;
        QCOMPARE(dialog.constraints->offers.last(), text("Red=99"));
        dialog.constraints->refused << key;
        QVERIFY(
            !panel->markChoiceForPPDOptionKeyFromSender(text("%2"), key, nullptr)); // no place for a value
        QVERIFY(dialog.log.last().endsWith(text("choice %2 for PPD Option Red")));
    }

    // A number field that is its own slider has no range but 0.
    void fieldWithoutASlider()
    {
        PanelHarness dialog(mode_);
        auto panel = dialog.make<BuiltPanel>();
        QLineEdit *field = panel->add<QLineEdit>(5);
        for (const char *choice : {"1", "-1", "0", "-"}) {
            QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(text(choice), text("Key5"), field));
            QCOMPARE(panel->recorded(text("Key5")), text(choice).contains(u'1') ? QString() : text(choice));
        }
        QCOMPARE(dialog.feedback->beeps, 2);
    }

    void mixedEnablerOfTheFinish()
    {
        PanelHarness dialog(mode_);
        auto panel = dialog.make<LVCorvelLaminationPDE>();
        QCheckBox box;
        box.setCheckState(Qt::PartiallyChecked);
        QCOMPARE(panel->enablerState(&box), 0); // the printer decides, and the panel's controls are of no use
    }

    void sendersThatAreNoControls()
    {
        PanelHarness dialog(mode_);
        auto panel = dialog.make<BuiltPanel>();
        panel->changePrinterSetting(panel->add<QWidget>(1));
        panel->changePrinterSetting(panel.get());
        panel->changePrinterSetting(nullptr);
        panel->sendPrinterCommand(panel->add<QPushButton>(2));
        QVERIFY(!panel->choiceDict_);
        QCOMPARE(dialog.feedback->beeps, 0);
    }

    // Where a control is asked for, none does nothing.
    void missingControls()
    {
        PanelHarness dialog(mode_);
        const auto ask = [&dialog](RKTPPRBasePDEcorvel &panel) {
            dialog.log.clear();
            panel.controlTextDidEndEditing(nullptr);
            panel.setControlsEnabledByToggle(nullptr);
            QVERIFY(!panel.newChoiceForSender(nullptr));
            QCOMPARE(dialog.log, QStringList());
            QCOMPARE(dialog.feedback->beeps, 0);
        };
        ask(*dialog.make<LVCorvelMainPDE>());
        ask(*dialog.make<LVSharpnessCorvelPDE>());
        ask(*dialog.make<LVCorvelLaminationPDE>());
        ask(*dialog.make<RKTPPRMatrixPDEcorvel>());
    }
};

CORVEL_WIDGETS_TEST(PanelActionsTest)
#include "PanelActionsTest.moc"
