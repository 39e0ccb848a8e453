// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Feedback.h"
#include "KitTest.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtCore/QVariant>
#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <array>
#include <cstddef>
#include <new>
#include <utility>

void KitTest::sliderValues_data()
{
    addRows<QVariant, QString>({
        {"1.234", 3, text("1.234")},
        {"1.2345", 3, text("1.235")},
        {"0.5 mm", 3, text("0.5")},
        {"1e999", 3, text("100000")},
        {"-1e999", 2, text("-25")},
        {"-", 2, text("0")},
        {"29", 2, text("29")},
        {"0.29", 2, text("0.29")},
        {"7.6", QVariant(), text("8")},
        {"150000000", QVariant(), text("100000000")},
        {"12", -4, text("12")},
        {"13", text("many"), text("13")},
    });
}

void KitTest::sliderValues()
{
    const auto [decimals, value] = row<QVariant, QString>();
    QSlider slider;
    slider.setRange(-2500, 100'000'000);
    slider.setProperty("decimals", decimals);
    slider.setValue(5);
    QVERIFY(pdekit::setStringValue(&slider, text(QTest::currentDataTag())));
    QCOMPARE(pdekit::stringValue(&slider), value);
    QCOMPARE(pdekit::minValue(&slider), decimals.toInt() == 3   ? -2.5
                                        : decimals.toInt() == 2 ? -25.0
                                                                : -2500.0);
}

void KitTest::otherValues()
{
    QComboBox combo;
    combo.addItem(text("Normal"), text("Standard"));
    combo.addItem(text("Fine"));
    QVERIFY(pdekit::setStringValue(&combo, text("Fine")));
    QCOMPARE(combo.currentIndex(), 1);
    pdekit::setStringValue(&combo, text("Normal")); // a text whose choice is another
    QCOMPARE(combo.currentIndex(), 1);
    pdekit::setStringValue(&combo, text("Standard"));
    QCOMPARE(pdekit::stringValue(&combo), text("Standard"));

    QCheckBox box;
    QVERIFY(pdekit::setState(&box, -1)); // has two states only: it is on
    QCOMPARE(pdekit::state(&box), 1);
    box.setTristate();
    pdekit::setState(&box, -1);
    QCOMPARE(pdekit::state(&box), -1);
    pdekit::setStringValue(&box, text("1"));
    QCOMPARE(pdekit::stringValue(&box), text("1"));
    QPushButton button;
    QVERIFY(!pdekit::setState(&button, 1) && !pdekit::state(&button));

    QWidget plain;
    QGroupBox group;
    QVERIFY(!pdekit::isControl(&plain) && !pdekit::isControl(nullptr) && !pdekit::isControl(&group));
    QVERIFY(!pdekit::stringValue(&plain) && !pdekit::setStringValue(&plain, text("1")));
    QVERIFY(!pdekit::maxValue(&combo) && !pdekit::title(&plain) && !pdekit::sizeToFit(&plain));
    QLabel label;
    QLineEdit field;
    QVERIFY(pdekit::isControl(&label) && !pdekit::isTextField(&label) && pdekit::isTextField(&field));
}

void KitTest::actionsOfUsersOnly()
{
    int actions = 0;
    const auto count = [&actions] {
        ++actions;
    };
    QObject context;
    QSlider slider(Qt::Horizontal);
    QCheckBox box;
    QComboBox combo;
    combo.addItems({text("a"), text("b")});
    pdekit::RadioMatrix matrix;
    auto *cell = new QRadioButton(&matrix);
    cell->setProperty("cellTag", 7);
    auto *cell2 = new QRadioButton(&matrix);
    cell2->move(0, 40);
    QLineEdit field;
    for (QWidget *control : {static_cast<QWidget *>(&slider), static_cast<QWidget *>(&box),
                             static_cast<QWidget *>(&combo), static_cast<QWidget *>(&matrix)})
        QVERIFY(pdekit::connectAction(control, &context, count));
    QVERIFY(!pdekit::connectAction(&field, &context, count));

    pdekit::setStringValue(&slider, text("9"));
    pdekit::setState(&box, 1);
    pdekit::setStringValue(&combo, text("b"));
    QVERIFY(matrix.selectCellWithTag(7) && !matrix.selectCellWithTag(0));
    QCOMPARE(actions, 0);

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&slider);
    QVERIFY(accessible && accessible->valueInterface());
    accessible->valueInterface()->setCurrentValue(33);
    QCOMPARE(slider.value(), 33);
    QCOMPARE(actions, 1);
    const auto toggle = [](QWidget *button) {
        QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
    };
    toggle(&box);
    QVERIFY(!box.isChecked());
    QCOMPARE(actions, 2);
    box.setTristate(); // off, mixed, on: each click is one action, also where nothing is toggled
    for (const int state : {-1, 1, 0, -1}) {
        box.click();
        QCOMPARE(pdekit::state(&box), state);
    }
    QCOMPARE(std::exchange(actions, 0), 6);

    matrix.resize(200, 100);
    matrix.show();
    QTest::mouseClick(cell, Qt::LeftButton, {}, {8, cell->height() / 2}); // selected already
    QCOMPARE(actions, 1);
    QTest::mouseClick(cell2, Qt::LeftButton, {}, {8, cell2->height() / 2});
    QCOMPARE(actions, 2);
    toggle(cell);
    QCOMPARE(matrix.selectedCell(), cell);
    QCOMPARE(actions, 3);
    QTest::mouseClick(cell, Qt::LeftButton, {}, {8, cell->height() / 2});
    QCOMPARE(std::exchange(actions, 0), 4);
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(pdekit::stringValue(&combo), text("a"));
    QCOMPARE(actions, 1);
}

void KitTest::textFieldEvents()
{
    QWidget window;
    QLineEdit field(&window);
    QLineEdit other(&window);
    pdekit::TextFieldEvents::attach(&field);
    auto *events = pdekit::TextFieldEvents::attach(&field); // the first one is gone
    QCOMPARE(field.findChildren<pdekit::TextFieldEvents *>().size(), 1);
    QSignalSpy changes(events, &pdekit::TextFieldEvents::textDidChange);
    QSignalSpy ends(events, &pdekit::TextFieldEvents::textDidEndEditing);
    QSignalSpy actions(events, &pdekit::TextFieldEvents::action);
    const auto counts = [&] {
        return QList<qsizetype>{changes.size(), ends.size(), actions.size()};
    };
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field.setFocus();
    field.setText(text("program"));
    other.setFocus();
    QCOMPARE(counts(), QList<qsizetype>({0, 0, 0}));
    field.setFocus();
    QTest::keyClicks(&field, text("ab"));
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(counts(), QList<qsizetype>({2, 1, 1}));
    other.setFocus(); // editing ended with Return already
    QCOMPARE(counts(), QList<qsizetype>({2, 1, 1}));
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Enter); // Return without an edit
    QCOMPARE(counts(), QList<qsizetype>({2, 2, 2}));
    QTest::keyClick(&field, Qt::Key_C);
    other.setFocus();
    QCOMPARE(counts(), QList<qsizetype>({3, 3, 2}));
}

void KitTest::decimalSeparators_data()
{
    using Text = const char *;
    addRows<Text, Text, Text, Text, Text>({
        {"German", "de", "", "", "1,5", "1.5|"},
        {"French", "fr", "", "", "-0,25", "-0.25|"},
        {"Spanish", "es", "", "", ",5", ".5|"},
        {"a point", "de", "", "", "1.5", "1.5|"},
        {"within a number", "de", "1", "25", ",", "1.|25"},
        {"before a number", "de", "", "5", "0,", "0.|5"},
        {"German thousands", "de", "", "", "1.000,5", "1.000.5|"},
        {"English thousands", "en", "", "", "1,000.5", "1,000.5|"},
        {"without a locale", "C", "", "", "1,5", "1,5|"},
    });
}

// Typed and pasted: who listens sees a point, once for each edit, and the cursor stands behind what was put
// in.
void KitTest::decimalSeparators()
{
    using Text = const char *;
    const auto [locale, before, after, input, shown] = row<Text, Text, Text, Text, Text>();
    QLocale::setDefault(QLocale(text(locale)));
    const auto view = loadControls();
    auto *field = view->findChild<QLineEdit *>(text("field"));
    QStringList heard;
    connect(pdekit::TextFieldEvents::attach(field), &pdekit::TextFieldEvents::textDidChange, field,
            [&heard, field] { heard << field->text(); });
    for (const bool pastes : {false, true}) {
        pdekit::setStringValue(field, text(before) + text(after));
        field->setCursorPosition(int(qstrlen(before)));
        heard.clear();
        if (pastes)
            field->insert(text(input));
        else
            QTest::keyClicks(field, text(input));
        QCOMPARE(heard.size(), pastes ? 1 : qsizetype(qstrlen(input)));
        QCOMPARE(heard.constLast(), field->text());
        QCOMPARE(field->text().insert(field->cursorPosition(), u'|'), text(shown));
    }
    pdekit::setStringValue(field, text("1,5"));
    QCOMPARE(field->text(), text("1,5")); // a program's text
}

void KitTest::rangeOfANumber()
{
    const auto view = loadControls();
    auto *field = view->findChild<QLineEdit *>(text("field"));
    const auto *range = view->findChild<QLabel *>(text("range"));
    auto *slider = view->findChild<QSlider *>(text("slider"));
    slider->setProperty("decimals", 2);
    slider->setRange(-50, 250);
    QCOMPARE(range->text(), text("-0.50 to 2.50"));
    QCOMPARE(field->accessibleDescription(), range->text());
    field->setEnabled(false);
    QVERIFY(!range->isEnabled());
    field->setEnabled(true);
    QVERIFY(range->isEnabled());

    // The listener puts "0.1" back, except that it lets "2" and what begins with it stand.
    connect(pdekit::TextFieldEvents::attach(field), &pdekit::TextFieldEvents::textDidChange, field, [field] {
        if (!field->text().startsWith(u'2'))
            pdekit::setStringValue(field, text("0.1"));
    });
    view->show();
    QVERIFY(QTest::qWaitForWindowActive(view.get()));
    const auto note = [&view] {
        const auto *label = view->findChild<QLabel *>(text("numberNote"));
        return label && label->isVisible() ? label->text() : QString();
    };
    const QString sentence = text("Enter a number from -0.50 to 2.50.");
    for (const auto &[typed, isTold] : {std::pair("9", true), std::pair("-9", true), std::pair("1", false),
                                        std::pair("x", false), std::pair("29", false)}) {
        field->setFocus();
        field->selectAll();
        field->insert(text(typed));
        QCOMPARE(note(), isTold ? sentence : QString());
    }
    field->setText(text("9")); // a program's text
    QCOMPARE(note(), QString());
    field->selectAll();
    field->insert(text("9"));
    QCOMPARE(note(), sentence);
    field->move(0, view->height() - field->height());
    field->selectAll();
    field->insert(text("-9"));
    QVERIFY(view->findChild<QLabel *>(text("numberNote"))->geometry().bottom() < field->y());
    slider->setFocus();
    QCOMPARE(note(), QString());
}

void KitTest::desktopFeedback()
{
    const auto before = pdekit::Feedback::install(nullptr);
    const auto restore = qScopeGuard([&] {
        pdekit::Feedback::install(before);
        QDesktopServices::unsetUrlHandler(text("file"));
    });
    QWidget window;
    window.show();
    // Texts of an alert are never markup; a key dismisses it.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QStringList shown;
        bool wasDismissed = false;
        QTimer::singleShot(0, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            for (const QLabel *label : box->findChildren<QLabel *>()) {
                if (!label->text().isEmpty())
                    shown << label->text() << text(label->textFormat() == Qt::PlainText ? "plain" : "markup");
            }
            for (const QAbstractButton *button : box->buttons())
                shown << button->text();
            shown << text(box->isModal() && box->parentWidget() == &window ? "modal" : "free");
            std::ignore = QTest::qWaitFor([box] { return box->isActiveWindow() && box->focusWidget(); });
            QTest::keyClick(box->windowHandle(), key);
            wasDismissed = !box->isVisible();
            box->reject(); // lest the test hang
        });
        pdekit::Feedback::current().alert({text("<b>a</b>"), text("<i>c</i>"), text("Fine")});
        QCOMPARE(shown.join(u' '), text("<b>a</b> plain <i>c</i> plain Fine modal"));
        QVERIFY(wasDismissed);
    }
    pdekit::Feedback::current().beep();

    // The help book opens in the user's first language that it has; what is before English counts.
    const QTemporaryDir folder;
    makeBundle(folder);
    write(folder.filePath(text("Contents/Resources/Book/index.html")), "");
    write(folder.filePath(text("Contents/Resources/Book/index_de.html")), "");
    const auto bundle = pdekit::Bundle::open(folder.path());
    QDesktopServices::setUrlHandler(text("file"), this, "openPage");
    for (const char *locale : {"de_AT", "fi", "en"}) {
        QLocale::setDefault(QLocale(text(locale)));
        QVERIFY(pdekit::Feedback::current().openHelpBook(*bundle, text("Book")));
    }
    QVERIFY(!pdekit::Feedback::current().openHelpBook(*bundle, text("Missing")));
    QCOMPARE(openedPages_, QStringList({text("index_de.html"), text("index.html"), text("index.html")}));
}

void KitTest::viewsByTag()
{
    QWidget view;
    QWidget first(&view);
    QWidget inner(&first);
    QWidget second(&view);
    QCOMPARE(pdekit::tag(&view), pdekit::noTag);
    pdekit::setTag(&inner, 5);
    pdekit::setTag(&second, 5);
    QCOMPARE(pdekit::viewWithTag(&view, 5), &inner); // in the depth before in the width
    pdekit::setTag(&view, 5);
    QCOMPARE(pdekit::viewWithTag(&view, 5), &view);
    QVERIFY(!pdekit::viewWithTag(&view, 6) && !pdekit::viewWithTag(nullptr, 5));
    // A tag is found again after every kind of change.
    view.setProperty("tag", 7);
    QCOMPARE(pdekit::tag(&view), 7);
    view.setProperty("tag", QVariant());
    QCOMPARE(pdekit::tag(&view), pdekit::noTag);
    view.setProperty("tag", QStringLiteral("8"));
    QCOMPARE(pdekit::tag(&view), 8);
    // A new view at the address of an old one does not have the old one's tag.
    alignas(QWidget) std::array<std::byte, sizeof(QWidget)> place;
    for (const int expected : {9, pdekit::noTag}) {
        auto *here = new (place.data()) QWidget;
        if (expected != pdekit::noTag)
            pdekit::setTag(here, expected);
        QCOMPARE(pdekit::tag(here), expected);
        here->~QWidget();
    }
}
