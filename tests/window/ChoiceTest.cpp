// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceTest.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtGui/QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

#include <algorithm>

using namespace testing_support;

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

PrintDialogSetup ChoiceTest::setup() const
{
    PrintDialogSetup setup = setupFor(mode_);
    setup.ppdFile = folder_.filePath(u"constrained.ppd"_s);
    return setup;
}

void ChoiceTest::refusalIsExplainedBesideItsControl_data()
{
    const QString red = u"\"Red\" cannot be \"25\" while \"Print Quality\" is \"Standard\"."_s;
    const QString radius = u"\"Sharpness Radius\" cannot be \"3\" while \"Blue\" is \"0\"."_s;
    const QString finish =
        u"\"Surface Finish\" cannot be \"Matte\" while \"Print Quality\" is \"Standard\"."_s;
    const QString fine = u"\"Print Quality\" to \"Fine\""_s;
    // The page; the control that is acted on, and the one that has the focus.
    addRows<int, int, int, QString, QString>({
        {"number typed", 0, 81, 81, red, fine},
        {"slider moved", 0, 1, 1, red, fine},
        {"second page", 1, 81, 81, radius, u"\"Blue\" to"_s},
        {"radio button", 2, 2, 2, finish, fine},
        {"radio button, the focus elsewhere", 2, 2, 32, finish, fine},
    });
}

void ChoiceTest::refusalIsExplainedBesideItsControl()
{
    if (mode_ == PanelMode::Settings)
        return; // nothing is refused before the job is made
    const auto [page, tag, focus, sentence, offer] = row<int, int, int, QString, QString>();
    const OpenedDialog opened(setup());
    opened.dialog->showPage(page);
    QWidget *control = opened.control(tag);
    opened.control(focus)->setFocus();
    if (focus != tag) // as where a click leaves it
        opened.find<QWidget>(u"matte"_s)->setFocusPolicy(Qt::TabFocus);
    if (qobject_cast<QLineEdit *>(control))
        opened.type(tag, page == 0 ? u"25"_s : u"3"_s);
    else if (qobject_cast<QSlider *>(control))
        QTest::keyClick(control, Qt::Key_End);
    else
        opened.click(u"matte"_s);

    auto *callout = opened.find<QWidget>(u"callout"_s);
    QVERIFY(callout->isVisible());
    QCOMPARE(opened.message(), sentence);
    QCOMPARE(QAccessible::queryAccessibleInterface(callout)->text(QAccessible::Name), sentence);
    QCOMPARE(feedback_->beeps, 1);
    QVERIFY(page != 2 || opened.find<QRadioButton>(u"glossy"_s)->isChecked());
    const QRect box = inWindow(callout);
    QVERIFY(!box.intersects(inWindow(control)));
    QVERIFY(inWindow(opened.control(tag)->window()).contains(box));
    QVERIFY(box.intersects(inWindow(control).adjusted(0, -2, 0, 2)));
    QVERIFY(!opened.isSeen(u"message"_s));
    QVERIFY(opened.find<QPushButton>(u"calloutOffer"_s)->text().contains(offer));
    QVERIFY(!callout->isAncestorOf(QApplication::focusWidget()));
    // The keyboard goes on from the control to the offer.
    QWidget *offered = opened.find<QPushButton>(u"calloutOffer"_s);
    for (int i = 0; i < 3 && QApplication::focusWidget() != offered; ++i)
        opened.press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), offered);
    QVERIFY(callout->isVisible());
}

// The defaults are chosen one after the other: one is refused, and the others are made.
void ChoiceTest::refusalOutlastsTheRestOfItsAct()
{
    if (mode_ == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup());
    opened.type(86, u"5"_s);
    opened.click(u"calloutOffer"_s); // the contrast, which cannot go back before the saturation does
    opened.type(81, u"9"_s);
    QVERIFY(!opened.isSeen(u"callout"_s));
    auto *defaults = opened.control(16);
    QTest::mouseClick(defaults, Qt::LeftButton);
    QCOMPARE(opened.fieldTexts({81, 86}), u"0 0"_s);
    QVERIFY(opened.message().startsWith(u"\"Contrast\" cannot be \"0\""_s));
    const QRect box = inWindow(opened.find<QWidget>(u"callout"_s));
    QVERIFY(opened.isSeen(u"callout"_s) && box.intersects(inWindow(defaults).adjusted(0, -2, 0, 2)));
}

// What a screen reader would hear, if the platform had one listening.
void ChoiceTest::screenReaderIsTold()
{
    if (mode_ == PanelMode::Settings)
        return;
    static QStringList heard;
    heard.clear();
    QPlatformAccessibility *platform = QGuiApplicationPrivate::platformIntegration()->accessibility();
    platform->setActive(true);
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        if (event->type() == QAccessible::Alert)
            heard.append(event->accessibleInterface()->text(QAccessible::Name));
    });
    const OpenedDialog opened(setup());
    opened.type(81, u"25"_s);
    opened.type(82, u"99"_s);
    QAccessible::installUpdateHandler(before);
    platform->setActive(false);
    QCOMPARE(heard, QStringList({u"\"Red\" cannot be \"25\" while \"Print Quality\" is \"Standard\"."_s,
                                 u"Enter a number from -25 to 25."_s}));
}

void ChoiceTest::calloutGoesByKeyAndByTheNextChoice()
{
    if (mode_ == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup());
    auto *callout = opened.find<QWidget>(u"callout"_s);
    opened.dialog->showPage(2);
    opened.click(u"matte"_s);
    QVERIFY(callout->isVisible());
    opened.press(Qt::Key_Escape);
    QVERIFY(!callout->isVisible() && opened.dialog->isVisible());
    opened.click(u"matte"_s);
    opened.press(Qt::Key_Tab);
    opened.press(Qt::Key_Tab);
    opened.press(Qt::Key_Space); // its button
    QVERIFY(!callout->isVisible());
    QCOMPARE(QApplication::focusWidget(),
             opened.find<QRadioButton>(u"matte"_s)); // from there the keyboard goes on
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
    if (mode_ == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup());
    opened.type(81, u"25"_s);
    QCOMPARE(opened.fieldText(81), u"2"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(!opened.find<QWidget>(u"callout"_s)
                     ->isVisible()); // a button pressed by its key stays down for a while
    QCOMPARE(opened.fieldText(81), u"25"_s);
    QCOMPARE(opened.slider(1)->value(), 25);
    opened.dialog->showPage(2);
    QVERIFY(opened.find<QRadioButton>(u"fine"_s)->isChecked());
    opened.undo();
    QVERIFY(opened.find<QRadioButton>(u"standard"_s)->isChecked());
    opened.dialog->showPage(0);
    QCOMPARE(opened.fieldText(81), u"2"_s);
    opened.redo();
    QCOMPARE(opened.fieldText(81), u"25"_s);
    QVERIFY(opened.prints());
    QCOMPARE(opened.printed(u"Quality Red"_s), u"Fine 25"_s);
}

// The way out would be another page size, which is for the user alone to change.
void ChoiceTest::noOfferWithoutAWay()
{
    const OpenedDialog opened(setup());
    opened.type(82, u"7"_s);
    if (mode_ == PanelMode::Settings) {
        opened.click(u"print"_s);
        QVERIFY(!opened.isSeen(u"messageAction"_s) ||
                opened.find<QPushButton>(u"messageAction"_s)->text().contains(u"Green"_s));
    } else {
        QVERIFY(opened.isSeen(u"callout"_s));
        QVERIFY2(!opened.isSeen(u"calloutOffer"_s),
                 qPrintable(opened.find<QPushButton>(u"calloutOffer"_s)->text()));
    }
    QVERIFY(opened.message().contains(u"Green"_s) && opened.message().contains(u"4 x 6"_s));
    QVERIFY(!opened.hasPrinted());
}

void ChoiceTest::refusedPageSize()
{
    if (mode_ == PanelMode::Settings)
        return;
    const OpenedDialog opened(setup());
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
    opened.undo();
    QCOMPARE(sizes->currentText(), before);
    QCOMPARE(opened.fieldText(87), u"2"_s);
}

// All choices are weighed when the job is made; the one that was made last is the one that is kept.
void ChoiceTest::conflictOfTheJobIsSettled()
{
    if (mode_ == PanelMode::Constraint)
        return;
    const OpenedDialog opened(setup());
    opened.dialog->showPage(2);
    opened.click(u"matte"_s);
    opened.click(u"print"_s);
    QVERIFY(!opened.hasPrinted());
    QCOMPARE(opened.message(),
             u"\"Surface Finish\" cannot be \"Matte\" while \"Print Quality\" is \"Standard\"."_s);
    opened.click(u"messageAction"_s);
    QCOMPARE(opened.message(), QString());
    QVERIFY(opened.find<QRadioButton>(u"fine"_s)->isChecked() &&
            opened.find<QRadioButton>(u"matte"_s)->isChecked());
    opened.click(u"standard"_s);
    opened.click(u"print"_s);
    QCOMPARE(opened.message(),
             u"\"Print Quality\" cannot be \"Standard\" while \"Surface Finish\" is \"Matte\"."_s);
    opened.click(u"messageAction"_s);
    QVERIFY(opened.find<QRadioButton>(u"standard"_s)->isChecked() &&
            opened.find<QRadioButton>(u"glossy"_s)->isChecked());
    opened.undo();
    QVERIFY(opened.find<QRadioButton>(u"standard"_s)->isChecked() &&
            opened.find<QRadioButton>(u"matte"_s)->isChecked());
    opened.redo();
    QVERIFY(opened.prints());
    QCOMPARE(opened.printed(u"Overcoat"_s), u"Glossy"_s);
    const OpenedDialog other(setup());
    other.dialog->showPage(2);
    for (const QString &cell : {u"fine"_s, u"matte"_s, u"standard"_s, u"print"_s})
        other.click(cell);
    QVERIFY(other.message().startsWith(u"\"Print Quality\" cannot be \"Standard\""_s));
}

CORVEL_WIDGETS_TEST(ChoiceTest)
