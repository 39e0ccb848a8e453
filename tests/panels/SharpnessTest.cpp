// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVSharpnessCorvelPDE.h"
#include "PanelHarness.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>

namespace {

QByteArray sharpnessPpd()
{
    QList<QByteArray> intensities;
    for (int i = 0; i <= 300; ++i)
        intensities << QByteArray::number(i / 100.0, 'f', 2);
    return PanelHarness::colorPpd(PanelHarness::ppdOption("SharpnessRadius", "1", {"0", "1", "2", "3"}) +
                                  PanelHarness::ppdOption("SharpnessIntensity", "1.00", intensities) +
                                  PanelHarness::ppdOption("SharpnessEnabled", "True", {"True", "False"}));
}

constexpr char intensity[] = "SharpnessIntensity";

QString offerOf(const QString &choice)
{
    return text("SharpnessIntensity=") + choice;
}

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
    void endOfEditingOutOfRange();
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
    QCOMPARE(slider->value(), qRound(choice.toDouble() * 1000)); // follows what was recorded
}

void SharpnessTest::endOfEditing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("0.055, rounded from single precision") << text("0.055") << text("0.05");
    QTest::newRow("a negative keeps its sign") << text("-0.5") << text("-0.50");
    for (const auto &[typed, shown] :
         {std::pair("1.234", "1.23"), std::pair("2.5", "2.50"), std::pair("-", "0.00"), std::pair("", "0.00"),
          std::pair(".", "0.00"), std::pair("1e", "1.00"), std::pair("0x10", "0.00"),
          std::pair("nan", "0.00")})
        QTest::newRow(qPrintable(text("\"%1\"").arg(text(typed)))) << text(typed) << text(shown);
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
    dialog.slider(2)->setMinimum(-100);
    // Return offers the rewritten text twice: at the end of editing, and as the field's own action.
    for (const auto &[key, changes] : {std::pair(Qt::Key_Return, 2), std::pair(Qt::Key_Tab, 1)}) {
        dialog.type(82, typed);
        if (typed.isEmpty())
            QTest::keyClick(field, Qt::Key_Delete);
        panel->events.clear();
        if (dialog.constraints)
            dialog.constraints->offers.clear();
        const QSignalSpy texts(field, &QLineEdit::textChanged);
        QTest::keyClick(field, key);
        QCOMPARE(panel->events, QStringList(text("end")) + QStringList(changes, text("change")));
        QCOMPARE(field->text(), shown);
        QCOMPARE(texts.first().first().toString(), typed == text("-") ? text("0") : shown);
        QCOMPARE(panel->recorded(text(intensity)), shown);
        QCOMPARE(dialog.slider(2)->value(), qRound(shown.toDouble() * 100));
        if (dialog.constraints)
            QCOMPARE(dialog.constraints->offers, QStringList(changes, offerOf(shown)));
    }
    QCOMPARE(dialog.feedback->beeps, 0);
}

void SharpnessTest::endOfEditingOutOfRange()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    dialog.field(82)->setText(text("3.005"));
    QTest::keyClick(dialog.field(82), Qt::Key_Return); // in single precision 3.01 is nearer
    QCOMPARE(dialog.field(82)->text(), text("1.00"));
    QCOMPARE(panel->recorded(text(intensity)), text("1.00"));
    QCOMPARE(dialog.feedback->beeps, 1);
}

void SharpnessTest::typing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("recorded");
    for (const char *number : {"-", ".", "1.", "1.5", "2.50", "-0"})
        QTest::newRow(number) << text(number) << text(number);
    QTest::newRow("hexadecimal begins with 0") << text("0x10") << text("0x10");
    QTest::newRow("no number is 0") << text("nan") << text("nan");
    QTest::newRow("out of range at the last key") << text("1e3") << text("1e");
    QTest::newRow("below the range") << text("-0.5") << text("-0.");
    QTest::newRow("too large") << text("4") << text("1.00");
}

void SharpnessTest::typing()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(QString, typed);
    QFETCH(QString, recorded);
    PanelHarness dialog(mode, sharpnessPpd());
    auto panel = dialog.make<LVSharpnessCorvelPDE>();
    dialog.show(*panel);
    dialog.type(82, typed);
    const bool accepted = typed == recorded;
    QCOMPARE(panel->recorded(text(intensity)), recorded);
    QCOMPARE(dialog.feedback->beeps, accepted ? 0 : 1);
    // Out of range, the print system's mark wins over what was recorded while typing.
    QCOMPARE(dialog.field(82)->text(), accepted || !dialog.constraints ? recorded : text("1.00"));
    if (dialog.constraints) { // each beginning was offered; what is out of range was not
        QStringList offers;
        for (qsizetype i = 1; i <= typed.size() - (accepted ? 0 : 1); ++i)
            offers << offerOf(typed.left(i));
        QCOMPARE(dialog.constraints->offers, offers);
    }
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
    panel->events.clear();
    QTest::keyClick(dialog.field(81), Qt::Key_Return);
    QCOMPARE(dialog.field(81)->text(), text("2")); // not reformatted, so not offered again
    QCOMPARE(panel->events, QStringList({text("end"), text("change")}));
    QGuiApplication::clipboard()->setText(text("3.7"));
    dialog.type(81, QString());
    QTest::keySequence(dialog.field(81), QKeySequence::Paste);
    QCOMPARE(panel->recorded(text("SharpnessRadius")), text("3"));
    QCOMPARE(dialog.field(81)->text(), text("3"));
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
