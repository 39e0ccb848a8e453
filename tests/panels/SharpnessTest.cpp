// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVSharpnessCorvelPDE.h"
#include "PanelHarness.h"

#include <QtTest/QTest>

namespace {

QByteArray sharpnessPpd()
{
    return PanelHarness::colorPpd(PanelHarness::ppdOption(
        "SharpnessIntensity", "1.00", {"-0.50", "0.00", "0.05", "0.06", "0.50", "1.00", "1.23", "2.50"}));
}

} // namespace

/// How the sharpness panel writes the intensity's two decimals.
class SharpnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void slider();
    void endOfEditing();
};

void SharpnessTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

// Rounded from double precision; a negative number loses its sign.
void SharpnessTest::slider()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    QSlider *slider = dialog.slider(2);
    slider->setProperty("decimals", 3);
    slider->setRange(-1000, 3000);
    for (const auto &[position, choice] :
         {std::pair(55, "0.06"), std::pair(1234, "1.23"), std::pair(-500, "0.50")}) {
        slider->setValue(position); // as an assistive tool does
        QCOMPARE(panel->recorded(text("SharpnessIntensity")), text(choice));
        QCOMPARE(dialog.field(82)->text(), text(choice));
        QCOMPARE(slider->value(), qRound(text(choice).toDouble() * 1000)); // follows what was recorded
    }
}

// Rounded from single precision, with its sign; what is no number is 0.
void SharpnessTest::endOfEditing()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    dialog.slider(2)->setMinimum(-100);
    for (const auto &[typed, shown] :
         {std::pair("0.055", "0.05"), std::pair("-0.5", "-0.50"), std::pair("1.234", "1.23"),
          std::pair("2.5", "2.50"), std::pair("-", "0.00"), std::pair("nan", "0.00")}) {
        // Return offers the rewritten text twice: at the end of editing, and as the field's own action.
        for (const auto &[key, changes] : {std::pair(Qt::Key_Return, 2), std::pair(Qt::Key_Tab, 1)}) {
            dialog.type(82, text(typed));
            panel->events.clear();
            QTest::keyClick(dialog.field(82), key);
            QCOMPARE(panel->events, QStringList(text("end")) + QStringList(changes, text("change")));
            QCOMPARE(dialog.field(82)->text(), text(shown));
            QCOMPARE(panel->recorded(text("SharpnessIntensity")), text(shown));
            QCOMPARE(dialog.slider(2)->value(), qRound(text(shown).toDouble() * 100));
        }
    }
    QCOMPARE(dialog.feedback->beeps, 0);
}

QTEST_MAIN(SharpnessTest)
#include "SharpnessTest.moc"
