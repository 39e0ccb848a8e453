// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionPanel.h"
#include "Bundle.h"
#include "PanelHarness.h"
#include "TestMain.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QRadioButton>

/// A page from a table, with a control of each kind.
class OptionPanelTest : public ModesTest
{
    Q_OBJECT

private Q_SLOTS:
    void choicesGoBothWays()
    {
        PanelHarness dialog(mode_, ppd());
        dialog.session.ticket.options.insert(text("Red"), text("0"));
        const auto panel = made(dialog);
        QVERIFY(panel->restoreValuesAndReturnError(nullptr));
        auto *view = panel->panelView();
        view->show();
        auto *popUp = view->findChild<QComboBox *>(text("popUp"));
        auto *field = view->findChild<QLineEdit *>(text("field"));
        QCOMPARE(popUp->currentText(), text("Shiny"));
        QVERIFY(view->findChild<QCheckBox *>(text("box"))->isChecked());

        view->findChild<QRadioButton *>(text("matte"))->click();
        QCOMPARE(popUp->currentText(), text("Dull"));
        field->selectAll();
        QTest::keyClicks(field, text("-12"));
        QCOMPARE(view->findChild<QSlider *>(text("slider"))->value(), -12);
        view->findChild<QCheckBox *>(text("box"))->click();
        QVERIFY(panel->markChoiceForPPDOptionKeyFromSender(text("glossy"), text("Finish"), nullptr));
        QVERIFY(view->findChild<QRadioButton *>(text("glossy"))->isChecked());
        QCOMPARE(dialog.feedback->beeps, 0);

        QVERIFY(panel->saveValuesAndReturnError(nullptr));
        const auto chosen = [&](const char *key) {
            return mode_ == Mode::Constraint ? dialog.marked(text(key))
                                             : dialog.session.ticket.options.value(text(key));
        };
        QCOMPARE(chosen("Red"), text("-12"));
        QCOMPARE(chosen("AdjustmentsEnabled"), text("False"));
        QCOMPARE(panel->summaryInfo()->value(text("Finish")), text("Shiny"));

        view->findChild<QPushButton *>(text("defaults"))->click();
        QVERIFY(panel->saveValuesAndReturnError(nullptr));
        QCOMPARE(chosen("Red"), text("0"));
        QCOMPARE(chosen("AdjustmentsEnabled"), text("True"));
    }

    void refusedChoiceIsPutBack()
    {
        PanelHarness dialog(mode_, ppd());
        if (dialog.constraints)
            dialog.constraints->refused = QStringList{text("Red")};
        const auto panel = made(dialog);
        panel->restoreValuesAndReturnError(nullptr);
        auto *field = panel->panelView()->findChild<QLineEdit *>(text("field"));
        field->selectAll();
        QTest::keyClicks(field, text("ab"));
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(field->text(), text("0"));
        QVERIFY(std::exchange(dialog.feedback->beeps, 0) > 0);
        QVERIFY(!panel->markChoiceForPPDOptionKeyFromSender(text("ab"), text("Red"), nullptr));
        QCOMPARE(dialog.feedback->beeps, 0); // a program's choice
    }

    void reportsWhatIsMissing()
    {
        PanelHarness dialog(Mode::Settings, ppd());
        const auto panel = made(dialog);
        dialog.session.ticketStatus = -1;
        QString error;
        QVERIFY(!panel->saveValuesAndReturnError(&error) && error.contains(text("print settings")));
        dialog.session.ppdStatus = -1;
        QVERIFY(!panel->restoreValuesAndReturnError(&error) && error.contains(text("PPD")));
    }

private:
    static QByteArray ppd()
    {
        return PanelHarness::colorPpd(
            PanelHarness::ppdOption("Finish", "Glossy", {"Glossy/Shiny", "Matte/Dull"}));
    }
    static std::unique_ptr<pdekit::OptionPanel> made(const PanelHarness &dialog)
    {
        const QString key = text("AdjustmentsEnabled");
        return std::make_unique<pdekit::OptionPanel>(
            pdekit::Bundle::bundleForClass(staticMetaObject), dialog.callback,
            pdekit::OptionPanel::Page{text("Red"),
                                      text("options"),
                                      text("options"),
                                      {{1, text("Red")},
                                       {2, text("Red")},
                                       {3, key},
                                       {4, text("Finish"), {{10, text("Glossy")}, {11, text("Matte")}}},
                                       {5, text("Finish")}}});
    }
};

CORVEL_WIDGETS_TEST(OptionPanelTest)
#include "OptionPanelTest.moc"
