// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceTest.h"
#include "SystemLog.h"
#include "TestMain.h"

#include <QtCore/QFile>
#include <QtGui/QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

#include <algorithm>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

QRect inWindow(const QWidget *widget)
{
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

} // namespace

void ChoiceTest::initTestCase_data()
{
    QTest::addColumn<PanelMode>("mode");
    QTest::newRow("constraint") << PanelMode::Constraint;
    QTest::newRow("settings") << PanelMode::Settings;
}

// The model with all options, and constraints on every page.
void ChoiceTest::initTestCase()
{
    QFile model(QStringLiteral(CORVEL_SIBLING_PPD));
    QVERIFY(model.open(QIODevice::ReadOnly));
    const QByteArray place = "*UIConstraints: *Quality Standard *Overcoat Matte\n";
    const QByteArray ppd =
        model.readAll().replace(place, place + "*UIConstraints: *Red 25 *Quality Standard\n"
                                               "*UIConstraints: *SharpnessRadius 3 *Blue 0\n"
                                               "*UIConstraints: *Green 7 *PageSize 4x6.Fullbleed\n"
                                               "*UIConstraints: *Gamma 2 *PageSize 6x8.Fullbleed\n"
                                               "*UIConstraints: *Saturation 5 *Contrast 0\n"
                                               "*UIConstraints: *Saturation 0 *Contrast 5\n");
    QFile file(folder_.filePath(u"constrained.ppd"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(ppd) == ppd.size());
}

void ChoiceTest::init()
{
    pdekit::Feedback::install(std::make_shared<RecordingFeedback>());
    pdekit::setSystemLogSink([](const QString &) {});
    config_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_->path()));
}

PrintDialogSetup ChoiceTest::setup(PanelMode mode) const
{
    PrintDialogSetup setup = setupFor(mode);
    setup.ppdFile = folder_.filePath(u"constrained.ppd"_s);
    return setup;
}

void ChoiceTest::refusalIsExplainedBesideItsControl_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("offer");
    QTest::newRow("number typed") << 0 << 81
                                  << u"\"Red\" cannot be \"25\" while \"Print Quality\" is \"Standard\"."_s
                                  << u"\"Print Quality\" to \"Fine\""_s;
    QTest::newRow("slider moved") << 0 << 1
                                  << u"\"Red\" cannot be \"25\" while \"Print Quality\" is \"Standard\"."_s
                                  << u"\"Print Quality\" to \"Fine\""_s;
    QTest::newRow("second page") << 1 << 81
                                 << u"\"Sharpness Radius\" cannot be \"3\" while \"Blue\" is \"0\"."_s
                                 << u"\"Blue\" to"_s;
    QTest::newRow("radio button")
        << 2 << 2 << u"\"Surface Finish\" cannot be \"Matte\" while \"Print Quality\" is \"Standard\"."_s
        << u"\"Print Quality\" to \"Fine\""_s;
}

void ChoiceTest::refusalIsExplainedBesideItsControl()
{
    QFETCH_GLOBAL(PanelMode, mode);
    if (mode == PanelMode::Settings)
        return; // nothing is refused before the job is made
    QFETCH(int, page);
    QFETCH(int, tag);
    QFETCH(QString, sentence);
    QFETCH(QString, offer);
    const OpenedDialog opened(setup(mode));
    opened.dialog->showPage(page);
    QWidget *control = opened.control(tag);
    control->setFocus();
    if (qobject_cast<QLineEdit *>(control))
        opened.type(tag, page == 0 ? u"25"_s : u"3"_s);
    else if (qobject_cast<QSlider *>(control))
        QTest::keyClick(control, Qt::Key_End);
    else
        opened.click(u"matte"_s);

    auto *callout = opened.find<QWidget>(u"callout"_s);
    QVERIFY(callout->isVisible());
    QCOMPARE(opened.dialog->message(), sentence);
    QCOMPARE(QAccessible::queryAccessibleInterface(callout)->text(QAccessible::Name), sentence);
    const QRect box = inWindow(callout);
    QVERIFY(!box.intersects(inWindow(control)));
    QVERIFY(inWindow(opened.control(tag)->window()).contains(box));
    QVERIFY(box.intersects(inWindow(control).adjusted(0, -2, 0, 2)));
    QVERIFY(!opened.find<QWidget>(u"message"_s)->isVisible());
    QVERIFY(opened.find<QPushButton>(u"calloutOffer"_s)->text().contains(offer));
    QVERIFY(!callout->isAncestorOf(QApplication::focusWidget()));
    // The keyboard goes on from the control to the offer.
    QWidget *offered = opened.find<QPushButton>(u"calloutOffer"_s);
    for (int i = 0; i < 3 && QApplication::focusWidget() != offered; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), offered);
    QVERIFY(callout->isVisible());
}

// What a screen reader would hear, if the platform had one listening.
void ChoiceTest::screenReaderIsTold()
{
    QFETCH_GLOBAL(PanelMode, mode);
    if (mode == PanelMode::Settings)
        return;
    static QStringList heard;
    heard.clear();
    QPlatformAccessibility *platform = QGuiApplicationPrivate::platformIntegration()->accessibility();
    platform->setActive(true);
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        if (event->type() == QAccessible::Alert)
            heard.append(event->accessibleInterface()->text(QAccessible::Name));
    });
    const OpenedDialog opened(setup(mode));
    opened.type(81, u"25"_s);
    opened.type(82, u"99"_s);
    QAccessible::installUpdateHandler(before);
    platform->setActive(false);
    QCOMPARE(heard, QStringList({u"\"Red\" cannot be \"25\" while \"Print Quality\" is \"Standard\"."_s,
                                 u"Enter a number from -25 to 25."_s}));
}

void ChoiceTest::calloutGoesByKeyAndByTheNextChoice()
{
    QFETCH_GLOBAL(PanelMode, mode);
    if (mode == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup(mode));
    auto *callout = opened.find<QWidget>(u"callout"_s);
    opened.dialog->showPage(2);
    opened.click(u"matte"_s);
    QVERIFY(callout->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!callout->isVisible() && opened.dialog->isVisible());
    opened.click(u"matte"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); // its button
    QVERIFY(!callout->isVisible());
    QCOMPARE(QApplication::focusWidget(), radio(opened, u"matte"_s)); // from there the keyboard goes on
    opened.click(u"matte"_s);
    opened.click(u"calloutClose"_s);
    QVERIFY(!callout->isVisible());
    opened.click(u"matte"_s);
    opened.click(u"fine"_s);
    QVERIFY(!callout->isVisible());
    opened.click(u"standard"_s);
    opened.click(u"matte"_s);
    QVERIFY(callout->isVisible());
    opened.dialog->showPage(0);
    QVERIFY(!callout->isVisible());
    for (const QString &button : {u"save"_s, u"print"_s}) {
        opened.dialog->showPage(2);
        opened.click(u"matte"_s);
        opened.click(button);
        QVERIFY(!callout->isVisible());
    }
}

void ChoiceTest::offerMakesTheChoiceAndOneStep()
{
    QFETCH_GLOBAL(PanelMode, mode);
    if (mode == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup(mode));
    opened.type(81, u"25"_s);
    QCOMPARE(opened.fieldText(81), u"2"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(!opened.find<QWidget>(u"callout"_s)
                     ->isVisible()); // a button pressed by its key stays down for a while
    QCOMPARE(opened.fieldText(81), u"25"_s);
    QCOMPARE(qobject_cast<QSlider *>(opened.control(1))->value(), 25);
    opened.dialog->showPage(2);
    QVERIFY(radio(opened, u"fine"_s)->isChecked());
    pressUndo(opened);
    QVERIFY(radio(opened, u"standard"_s)->isChecked());
    opened.dialog->showPage(0);
    QCOMPARE(opened.fieldText(81), u"2"_s);
    pressRedo(opened);
    QCOMPARE(opened.fieldText(81), u"25"_s);
    opened.click(u"print"_s);
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"Quality"_s].toString(), u"Fine"_s);
    QCOMPARE(opened.options()[u"Red"_s].toString(), u"25"_s);
}

// The way out would be another page size, which is for the user alone to change.
void ChoiceTest::noOfferWithoutAWay()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(setup(mode));
    opened.type(82, u"7"_s);
    if (mode == PanelMode::Settings) {
        opened.click(u"print"_s);
        QVERIFY(!opened.find<QWidget>(u"messageAction"_s)->isVisible() ||
                opened.find<QPushButton>(u"messageAction"_s)->text().contains(u"Green"_s));
    } else {
        QVERIFY(opened.find<QWidget>(u"callout"_s)->isVisible());
        QVERIFY2(!opened.find<QWidget>(u"calloutOffer"_s)->isVisible(),
                 qPrintable(opened.find<QPushButton>(u"calloutOffer"_s)->text()));
    }
    QVERIFY(opened.dialog->message().contains(u"Green"_s) && opened.dialog->message().contains(u"4 x 6"_s));
    QVERIFY(!opened.hasPrinted());
}

void ChoiceTest::refusedPageSize()
{
    QFETCH_GLOBAL(PanelMode, mode);
    if (mode == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup(mode));
    opened.type(87, u"2"_s);
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    const QString before = sizes->currentText();
    sizes->setFocus();
    QTest::keyClick(sizes, Qt::Key_6); // "6 x 8"
    QCOMPARE(sizes->currentText(), before);
    auto *callout = opened.find<QWidget>(u"callout"_s);
    QVERIFY(callout->isVisible());
    QVERIFY(!inWindow(callout).intersects(inWindow(sizes)));
    opened.click(u"calloutOffer"_s);
    QVERIFY(sizes->currentText() != before);
    QVERIFY(opened.fieldText(87) != u"2"_s);
    pressUndo(opened);
    QCOMPARE(sizes->currentText(), before);
    QCOMPARE(opened.fieldText(87), u"2"_s);
}

// All choices are weighed when the job is made; the one that was made last is the one that is kept.
void ChoiceTest::conflictOfTheJobIsSettled()
{
    QFETCH_GLOBAL(PanelMode, mode);
    if (mode == PanelMode::Constraint)
        return;
    const OpenedDialog opened(setup(mode));
    opened.dialog->showPage(2);
    opened.click(u"matte"_s);
    opened.click(u"print"_s);
    QVERIFY(!opened.hasPrinted());
    QCOMPARE(opened.dialog->message(),
             u"\"Surface Finish\" cannot be \"Matte\" while \"Print Quality\" is \"Standard\"."_s);
    opened.click(u"messageAction"_s);
    QCOMPARE(opened.dialog->message(), QString());
    QVERIFY(radio(opened, u"fine"_s)->isChecked() && radio(opened, u"matte"_s)->isChecked());
    opened.click(u"standard"_s);
    opened.click(u"print"_s);
    QCOMPARE(opened.dialog->message(),
             u"\"Print Quality\" cannot be \"Standard\" while \"Surface Finish\" is \"Matte\"."_s);
    opened.click(u"messageAction"_s);
    QVERIFY(radio(opened, u"standard"_s)->isChecked() && radio(opened, u"glossy"_s)->isChecked());
    pressUndo(opened);
    QVERIFY(radio(opened, u"standard"_s)->isChecked() && radio(opened, u"matte"_s)->isChecked());
    pressRedo(opened);
    opened.click(u"print"_s);
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"Overcoat"_s].toString(), u"Glossy"_s);
}

CORVEL_WIDGETS_TEST(ChoiceTest)
