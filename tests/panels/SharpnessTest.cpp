// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVSharpnessCorvelPDE.h"
#include "PanelHarness.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>

namespace {

/// The radius's choices, and the intensity's that the tests use; the print system takes the beginnings of
/// numbers, too.
QByteArray sharpnessPpd()
{
    QList<QByteArray> intensities = {"", "-", ".", "1.", "1.5", "1e"};
    for (int i = 0; i <= 300; ++i)
        intensities << QByteArray::number(i / 100.0, 'f', 2);
    return PanelHarness::colorPpd(PanelHarness::ppdOption("SharpnessRadius", "1", {"0", "1", "2", "3"}) +
                                  PanelHarness::ppdOption("SharpnessIntensity", "1.00", intensities.mid(6)) +
                                  PanelHarness::ppdOption("SharpnessEnabled", "True", {"True", "False"}));
}

constexpr char intensity[] = "SharpnessIntensity";

} // namespace

class SharpnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void names();
    void tables();
    void slider_data();
    void slider();
    void endOfEditing_data();
    void endOfEditing();
    void typing_data();
    void typing();
    void radius();
    void enabler();
};

void SharpnessTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

void SharpnessTest::names()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.log.clear();
    QCOMPARE(panel->nibName(), text("corvelSharpness"));
    QCOMPARE(dialog.log, QStringList{text("corvelPDE wants to know nibName for corvelSharpness...")});
    QCOMPARE(panel->panelName(), text("Sharpness"));
    QCOMPARE(panel->panelKind(), text("org.corvel.printing.Corvel9031.sharpness"));
    QCOMPARE(panel->supportedPPDOptionKeys(),
             QStringList({text("SharpnessEnabled"), text(intensity), text("SharpnessRadius")}));
}

void SharpnessTest::tables()
{
    LVSharpnessCorvelPDE panel;
    const QHash<int, QString> keys = {{1, text("SharpnessRadius")},   {81, text("SharpnessRadius")},
                                      {2, text(intensity)},           {82, text(intensity)},
                                      {32, text("SharpnessEnabled")}, {112, text("SharpnessEnabled")}};
    const QHash<int, QString> choices = {{2, text("0")}, {3, text("1")}, {4, text("2")}, {5, text("3")}};
    for (int tag = -1; tag < 300; ++tag) {
        QCOMPARE(panel.ppdOptionKeyForTag(tag).value_or(QString()), keys.value(tag));
        QCOMPARE(panel.ppdChoiceForTag(tag).value_or(QString()), choices.value(tag));
    }
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
        QCOMPARE(panel.tagForStringValue(*choice), choice.key());
    for (const auto &unknown : {RKTPPRBasePDEcorvel::Text(text("4")), RKTPPRBasePDEcorvel::Text(text("01")),
                                RKTPPRBasePDEcorvel::Text()})
        QCOMPARE(panel.tagForStringValue(unknown), 0);
}

void SharpnessTest::slider_data()
{
    QTest::addColumn<int>("position"); // thousandths
    QTest::addColumn<QString>("choice");
    QTest::newRow("0.055, rounded from double precision") << 55 << text("0.06");
    QTest::newRow("1.234") << 1234 << text("1.23");
    QTest::newRow("2.5") << 2500 << text("2.50");
    QTest::newRow("-0.5 loses its sign") << -500 << text("0.50");
}

void SharpnessTest::slider()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(int, position);
    QFETCH(QString, choice);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    QSlider *slider = dialog.slider(2);
    slider->setProperty("decimals", 3);
    slider->setRange(-1000, 3000);
    slider->setValue(position); // as an assistive tool does
    QCOMPARE(panel->recorded(text(intensity)), choice);
    QCOMPARE(dialog.field(82)->text(), choice);
    QCOMPARE(slider->toolTip(), choice);
}

void SharpnessTest::endOfEditing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("0.055, rounded from single precision") << text("0.055") << text("0.05");
    QTest::newRow("1.234") << text("1.234") << text("1.23");
    QTest::newRow("1.5") << text("1.5") << text("1.50");
    QTest::newRow("a lone minus") << text("-") << text("0.00");
    QTest::newRow("nothing") << QString() << text("0.00");
    QTest::newRow("2.5") << text("2.5") << text("2.50");
}

void SharpnessTest::endOfEditing()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    QLineEdit *field = dialog.field(82);
    field->setText(typed);
    panel->events.clear();
    panel->controlTextDidEndEditing(field);
    QCOMPARE(panel->events, QStringList({text("end"), text("change")}));
    QCOMPARE(field->text(), shown);
    QCOMPARE(panel->recorded(text(intensity)), shown);
    if (dialog.constraints)
        QCOMPARE(dialog.constraints->offers.constLast(), text("SharpnessIntensity=") + shown);
}

void SharpnessTest::typing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("recorded"); // in print-settings mode
    for (const char *number : {"-", ".", "1.", "1.5", "2.50"})
        QTest::newRow(number) << text(number) << text(number);
    QTest::newRow("hexadecimal begins with 0") << text("0x10") << text("0x10");
    QTest::newRow("no number is 0") << text("nan") << text("nan");
    QTest::newRow("out of range at the last key") << text("1e3") << text("1e");
    QTest::newRow("too large") << text("4") << text("1.00");
}

void SharpnessTest::typing()
{
    QFETCH(QString, typed);
    QFETCH(QString, recorded);
    PanelHarness dialog(Mode::Settings, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    dialog.type(82, typed);
    QCOMPARE(panel->recorded(text(intensity)), recorded);
    QCOMPARE(dialog.field(82)->text(), recorded);
    QCOMPARE(dialog.feedback->beeps, typed == recorded ? 0 : 1);
}

void SharpnessTest::radius()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    QTest::keyClick(dialog.slider(1), Qt::Key_End);
    QCOMPARE(panel->recorded(text("SharpnessRadius")), text("3"));
    QCOMPARE(dialog.field(81)->text(), text("3"));
    dialog.type(81, text("2"));
    QTest::keyClick(dialog.field(81), Qt::Key_Return);
    QCOMPARE(dialog.field(81)->text(), text("2")); // not reformatted
    dialog.field(81)->setText(text("1.7"));
    QCOMPARE(panel->newChoiceForSender(dialog.field(81)), text("1"));
}

void SharpnessTest::enabler()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    auto *box = qobject_cast<QCheckBox *>(dialog.control(32));
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(panel->recorded(text("SharpnessEnabled")), text("False"));
    for (const int tag : {1, 2, 81, 82})
        QVERIFY(!dialog.control(tag)->isEnabled());
    QVERIFY(dialog.control(16)->isEnabled());
}

QTEST_MAIN(SharpnessTest)
#include "SharpnessTest.moc"
