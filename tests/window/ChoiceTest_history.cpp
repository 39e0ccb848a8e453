// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceTest.h"

#include "ChoiceHistory.h"

using namespace testing_support;

// Steps back and forward, and what is kept for the next time.

void ChoiceTest::undoAndRedo()
{
    const OpenedDialog opened(setup());
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    const int size = sizes->currentIndex();
    opened.undo(); // there is nothing to undo yet
    opened.type(81, u"-12"_s);
    opened.dialog->showPage(2);
    opened.click(u"fine"_s);
    opened.chooseLast(u"pageSize"_s);
    auto *copies = opened.find<QSpinBox>(u"copies"_s);
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_Up);
    QTest::keyClick(copies, Qt::Key_Up);
    QCOMPARE(copies->value(), 3);

    opened.undo(); // with the focus in a field that has its own undo
    QCOMPARE(copies->value(), 1);
    opened.undo();
    QCOMPARE(sizes->currentIndex(), size);
    opened.undo();
    QVERIFY(opened.find<QRadioButton>(u"standard"_s)->isChecked());
    opened.dialog->showPage(0);
    opened.control(81)->setFocus();
    opened.undo();
    QCOMPARE(opened.fieldText(81), u"0"_s);
    QCOMPARE(opened.slider(1)->value(), 0);
    opened.undo();
    QCOMPARE(opened.fieldText(81), u"0"_s);
    for (int i = 0; i < 5; ++i)
        opened.redo();
    QCOMPARE(opened.fieldText(81), u"-12"_s);
    QVERIFY(opened.find<QRadioButton>(u"fine"_s)->isChecked());
    QCOMPARE(copies->value(), 3);
    opened.undo();
    opened.type(82, u"4"_s); // another way: there is nothing to redo any more
    opened.redo();
    QCOMPARE(copies->value(), 1);
    QVERIFY(opened.prints());
    QCOMPARE(opened.printed(u"Red Green Quality PageSize"_s),
             u"-12 4 Fine "_s + sizes->itemData(sizes->count() - 1).toString());
}

void ChoiceTest::oneActIsOneStep()
{
    const OpenedDialog opened(setup());
    for (const QString &number : {u"5"_s, u"0"_s})
        opened.type(81, number);
    QVERIFY(!opened.find<QWidget>(u"undo"_s)->isEnabled()); // what is as it was is no step
    opened.control(82)->setFocus();
    auto *slider = opened.slider(3);
    const auto drag = [slider](int from, int to) {
        const auto at = [slider](int percent) {
            return QPoint(slider->width() * percent / 100, slider->height() / 2);
        };
        QTest::mousePress(slider, Qt::LeftButton, {}, at(from));
        for (int i = 1; i <= 5; ++i)
            QTest::mouseMove(slider, at(from + (to - from) * i / 5));
        QTest::mouseRelease(slider, Qt::LeftButton, {}, at(to));
    };
    drag(50, 70);
    const int first = slider->value();
    drag(70, 90);
    QVERIFY(slider->value() > first && first > 0);
    // One field and then the other; the way there changes nothing.
    opened.type(81, u"11"_s);
    QTest::keyClick(opened.control(81), Qt::Key_Return);
    opened.type(82, u"12"_s);
    // A button that makes many choices.
    QTest::mouseClick(opened.control(16), Qt::LeftButton);
    QCOMPARE(slider->value(), 0);
    opened.undo();
    QCOMPARE(opened.fieldTexts({81, 82}), u"11 12"_s);
    QVERIFY(slider->value() > first);
    opened.undo();
    QCOMPARE(opened.fieldTexts({81, 82}), u"11 0"_s);
    opened.undo();
    QCOMPARE(opened.fieldText(81), u"0"_s);
    QVERIFY(slider->value() > first);
    opened.undo();
    QCOMPARE(slider->value(), first);
    opened.undo();
    QCOMPARE(slider->value(), 0);
    // A change that no act was noted for is a step, too.
    QStringList made;
    ChoiceHistory history([&made](const ChoiceHistory::State &state) { made += state.value(u"Red"_s); });
    history.start({{u"Red"_s, u"0"_s}});
    history.change({u"Red"_s, u"0"_s, u"1"_s});
    history.note(false);
    history.change({u"Red"_s, u"1"_s, u"2"_s});
    history.undo();
    QCOMPARE(made, QStringList{u"1"_s});
}

// Another printer has other choices, but the photos are the same.
void ChoiceTest::photosStepsOutliveThePrinter()
{
    QList<int> shown;
    ChoiceHistory history([](const ChoiceHistory::State &) { QFAIL("a choice of the last printer"); },
                          [&shown](const ArrangementModel::State &state) { shown += state.current; });
    history.start({{u"Red"_s, u"0"_s}});
    for (const int i : {1, 2}) {
        history.changePhotos({{}, {}, i - 1}, {{}, {}, i});
        history.change({u"Red"_s, QString::number(i - 1), QString::number(i)});
        history.note(false);
    }
    history.start({});
    while (history.canUndo())
        history.undo();
    history.redo();
    QCOMPARE(shown, (QList<int>{1, 0, 1}));
}

// No single choice leads from one state to the other.
void ChoiceTest::undoOfChoicesThatAllowEachOtherOnlyTogether()
{
    const OpenedDialog opened(setup());
    const int saturation = 86;
    const int contrast = 85;
    opened.type(saturation, u"5"_s);
    opened.click(mode_ == PanelMode::Constraint ? u"calloutOffer"_s : u"print"_s);
    if (mode_ == PanelMode::Settings)
        opened.click(u"messageAction"_s);
    QCOMPARE(opened.fieldText(saturation), u"5"_s);
    const QString settled = opened.fieldText(contrast);
    QVERIFY(settled != u"0"_s);
    for (int i = 0; i < 4; ++i)
        opened.undo();
    QCOMPARE(opened.fieldTexts({saturation, contrast}), u"0 0"_s);
    for (int i = 0; i < 4; ++i)
        opened.redo();
    QCOMPARE(opened.fieldTexts({saturation, contrast}), u"5 "_s + settled);
}

void ChoiceTest::revertIsAStep()
{
    PrintDialogSetup with = setup();
    with.options = {{u"Red"_s, u"3"_s}};
    const OpenedDialog opened(with);
    const QList<QAction *> actions = opened.find<QWidget>(u"presetMenu"_s)->actions();
    QAction *revert = actions.constLast();
    QVERIFY(!revert->isEnabled());
    opened.type(81, u"9"_s);
    opened.type(82, u"9"_s);
    QVERIFY(revert->isEnabled());
    revert->trigger();
    QCOMPARE(opened.fieldTexts({81, 82}), u"3 0"_s);
    QVERIFY(!revert->isEnabled());
    opened.undo();
    QCOMPARE(opened.fieldTexts({81, 82}), u"9 9"_s);
}

void ChoiceTest::printingKeepsTheChoices()
{
    {
        const OpenedDialog opened(setup());
        opened.type(81, u"5"_s);
        opened.find<QSpinBox>(u"copies"_s)->setValue(4);
        opened.chooseLast(u"pageSize"_s);
        QVERIFY(opened.prints());
    }
    const OpenedDialog opened(setup());
    QCOMPARE(opened.fieldText(81), u"5"_s);
    QCOMPARE(opened.find<QSpinBox>(u"copies"_s)->value(), 4);
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    QCOMPARE(sizes->currentIndex(), sizes->count() - 1);
    opened.undo(); // how it opened is where it begins
    QCOMPARE(opened.fieldText(81), u"5"_s);
}

void ChoiceTest::cancelKeepsNothing()
{
    const OpenedDialog opened(setup());
    opened.type(81, u"5"_s);
    opened.click(u"cancel"_s);
    QVERIFY(!opened.dialog->isVisible() && !opened.hasPrinted());
    QVERIFY(QDir(config_->path()).isEmpty());
}

// Saved by another version, or for another PPD: what cannot be together is left out, and said.
void ChoiceTest::keptChoicesThatConflict()
{
    const QString folder = config_->filePath(u"corvel-print/queues"_s);
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + u"/built-in.json"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"version": 1, "options": {"Overcoat": "Matte", "Quality": "Standard", "Red": "8",
                   "Blue": "999", "Gone": "1", "copies": "0"}})");
    file.close();
    const OpenedDialog opened(setup());
    for (const QString &part : {u"Surface Finish"_s, u"Matte"_s, u"999"_s, u"Gone"_s, u"copies"_s})
        QVERIFY2(opened.message().contains(part), qPrintable(opened.message()));
    QCOMPARE(opened.fieldText(81), u"8"_s);
    QVERIFY(opened.prints());
    QCOMPARE(opened.printed(u"Quality Overcoat Red Blue"_s), u"Standard Glossy 8 0"_s);
}
