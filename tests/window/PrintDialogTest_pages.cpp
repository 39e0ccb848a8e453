// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintDialogTest.h"

#include "HelpWindow.h"
#include "ViewTags.h"

#include <QtCore/QScopeGuard>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QTreeWidget>

#include <utility>

using namespace testing_support;

namespace {

/// "label: text", line by line, of the summary that is shown.
QStringList summaryOf(const OpenedDialog &opened)
{
    const auto *page = opened.dialog->findChild<QTreeWidget *>();
    QStringList lines;
    for (int i = 0; page->isVisible() && i < page->topLevelItemCount(); ++i)
        lines += page->topLevelItem(i)->text(0) + u": "_s + page->topLevelItem(i)->text(1);
    return lines;
}

} // namespace

void PrintDialogTest::pagesTurnFromAnywhere()
{
    const OpenedDialog opened;
    const auto *pages = opened.find<QTabWidget>(u"panels"_s);
    for (const QString &name : {u"printer"_s, u"copies"_s, u"redField"_s, u"preview"_s, u"print"_s}) {
        opened.dialog->showPage(0);
        opened.find<QWidget>(name)->setFocus();
        QList<int> seen;
        for (const auto &[key, modifiers] :
             {std::pair(Qt::Key_Tab, Qt::KeyboardModifiers(Qt::ControlModifier)),
              {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier},
              {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier}}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            seen += pages->currentIndex();
        }
        QCOMPARE(seen, (QList<int>{1, 0, pages->count() - 1}));
    }
}

// The panel's own; the dialog's own on the page that is the dialog's, and where the panel's cannot be opened.
// By page, each page in the order of its panel. What is not on a page comes first, and changes while it is
// being looked at.
void PrintDialogTest::summaryFollowsTheJob()
{
    const OpenedDialog opened(mode_);
    opened.type(81, u"-12"_s);
    opened.dialog->showPage(opened.dialog->pageCount() - 1);
    QStringList expected =
        u"Paper size: 4 x 6 in, borderless|Copies: 1|Placement: Fit on the page|Brightness: 0|Contrast: 0|"
        "Saturation: 0|Gamma: 0|Red: -12|Green: 0|Blue: 0|Adjust colors: On|Sharpen photo: On|"
        "Sharpness Intensity: 1.00|Sharpness Radius: 1|Surface Finish: Glossy|Print Quality: Standard|"
        "Use settings from printer panel: Off|Matte Level: 0|Resolution: 300 x 300 dpi"_s.split(u'|');
    QCOMPARE(summaryOf(opened), expected);

    QTest::keyClick(opened.find<QSpinBox>(u"copies"_s), Qt::Key_Up);
    expected[1] = u"Copies: 2"_s;
    QCOMPARE(summaryOf(opened), expected);
    opened.click(u"turn"_s);
    QTest::keyClick(opened.find<QComboBox>(u"scaling"_s), Qt::Key_Down);
    expected[2] = u"Placement: Fill the page, turned by 90°"_s;
    QCOMPARE(summaryOf(opened), expected);
    const auto *sizes = opened.chooseLast(u"pageSize"_s);
    QVERIFY(summaryOf(opened).constFirst().endsWith(sizes->currentText()) && summaryOf(opened) != expected);
    for (int i = 0; i < 5; ++i) // the page, the scaling, the turn, the copies, Red
        opened.undo();
    expected[1] = u"Copies: 1"_s;
    expected[2] = u"Placement: Fit on the page"_s;
    expected[7] = u"Red: 0"_s;
    QCOMPARE(summaryOf(opened), expected);
}

void PrintDialogTest::summaryOfSeveralPhotos()
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.photos.append(setup.photos.constFirst());
    const OpenedDialog opened(setup);
    opened.dialog->showPage(opened.dialog->pageCount() - 1);
    QCOMPARE(summaryOf(opened).at(2), u"Placement: Fit on the page"_s);
    opened.click(u"turn"_s);
    QCOMPARE(summaryOf(opened).at(2), u"Placement: Differs by photo"_s);
    opened.click(u"removePhoto"_s);
    QCOMPARE(summaryOf(opened).at(2), u"Placement: Fit on the page"_s);
    opened.click(u"removePhoto"_s);
    QVERIFY(!summaryOf(opened).at(2).startsWith(u"Placement"_s));
}

void PrintDialogTest::help()
{
    const OpenedDialog opened;
    const auto dialogsHelp = [&opened] {
        return opened.dialog->findChild<HelpWindow *>();
    };
    QTest::keyClick(opened.dialog.get(), Qt::Key_F1);
    QCOMPARE(feedback_->helpBooks, QStringList{u"Corvel9031Help"_s});
    QVERIFY(!dialogsHelp());
    feedback_->opensHelp = false;
    QTest::keyClick(opened.dialog.get(), Qt::Key_F1);
    QVERIFY(dialogsHelp() && dialogsHelp()->isVisible());
    opened.dialog->showPage(opened.dialog->pageCount() - 1);
    opened.click(u"help"_s);
    QCOMPARE(opened.dialog->findChildren<HelpWindow *>().size(), 1);
    QCOMPARE(feedback_->helpBooks.size(), 2);

    auto *text = dialogsHelp()->findChild<QTextBrowser *>();
    QVERIFY(text->toPlainText().contains(u"Save Settings"_s));
    QVERIFY(text->document()->pageCount() > 0 && text->verticalScrollBar()->maximum() > 0);
    text->setSource(QUrl(u"#keys"_s)); // a link leads to its place
    QVERIFY(text->verticalScrollBar()->value() > 0);
    QTest::keyClick(text, Qt::Key_Escape);
    QTRY_VERIFY(!dialogsHelp());
    QVERIFY(opened.dialog->isVisible());
}

void PrintDialogTest::tabOrderAndNames()
{
    const OpenedDialog opened;
    QWidget *first = opened.find<QWidget>(u"printer"_s);
    const auto round = [&](QStringList &order) {
        first->setFocus();
        do {
            QWidget *widget = QApplication::focusWidget();
            QVERIFY(widget);
            const int tag = pdekit::tag(widget);
            order << (tag == pdekit::noTag ? widget->objectName() : QString::number(tag));
            QTest::keyClick(widget, Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && order.size() < 60);
    };
    const QStringList before = {
        u"printer"_s, u"presets"_s,   u"managePresets"_s, u"pageSize"_s, u"position"_s,
        u"copies"_s,  u"documents"_s, u"folder"_s,        u"browse"_s,   u"qt_tabwidget_tabbar"_s};
    const QStringList after = {u"help"_s,    u"save"_s,    u"cancel"_s,   u"print"_s,
                               u"preview"_s, u"zoom"_s,    u"zoomIn"_s,   u"compare"_s,
                               u"divide"_s,  u"clipped"_s, u"ruler"_s,    u"scaling"_s,
                               u"turn"_s,    u"more"_s,    u"addPhoto"_s, u"removePhoto"_s};
    QStringList color;
    for (int tag = 1; tag <= 7; ++tag)
        color << QString::number(tag) << QString::number(tag + 80);
    QStringList order;
    round(order);
    QCOMPARE(order, before + QStringList{u"32"_s} + color + QStringList{u"16"_s} + after);
    for (int page = 1; page < opened.dialog->pageCount(); ++page) {
        opened.dialog->showPage(page);
        order.clear();
        round(order);
        QCOMPARE(order.first(before.size()), before);
        QCOMPARE(order.last(after.size()), after);
        QVERIFY(order.size() > before.size() + after.size());
    }
}

// From the opened window to the printed photo by keys alone, each sent to what has the focus.
void PrintDialogTest::wholeFlowByKeyboard()
{
    const OpenedDialog opened(mode_);
    const auto tabTo = [&](const auto &isThere) {
        for (int i = 0; i < 60 && !isThere(QApplication::focusWidget()); ++i)
            opened.press(Qt::Key_Tab);
        return isThere(QApplication::focusWidget());
    };
    const auto named = [](const QString &name) {
        return [name](const QWidget *widget) {
            return widget->objectName() == name;
        };
    };
    const auto tagged = [](int tag) {
        return [tag](const QWidget *widget) {
            return pdekit::tag(widget) == tag;
        };
    };
    QVERIFY(QApplication::focusWidget());
    QTRY_VERIFY(opened.dialog->isPreviewReady());
    const QImage before = opened.find<QWidget>(u"preview"_s)->grab().toImage();
    QVERIFY(tabTo(named(u"pageSize"_s)));
    opened.press(Qt::Key_End);
    QVERIFY(opened.find<QWidget>(u"preview"_s)->grab().toImage() != before);
    QVERIFY(tabTo(tagged(3)));
    opened.press(Qt::Key_Right);
    QVERIFY(tabTo(named(u"qt_tabwidget_tabbar"_s)));
    opened.press(Qt::Key_Right);
    QVERIFY(tabTo(tagged(82)));
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_Period, Qt::Key_5})
        opened.press(key); // the field's text is selected, and these take its place
    QVERIFY(tabTo(named(u"scaling"_s)));
    opened.press(Qt::Key_Down);
    QVERIFY(tabTo(named(u"preview"_s)));
    opened.press(Qt::Key_P, Qt::ControlModifier);
    QTRY_VERIFY(opened.hasPrinted());
    const QString lastSize = opened.find<QComboBox>(u"pageSize"_s)->currentData().toString();
    QVERIFY(lastSize != u"4x6.Fullbleed"_s);
    QCOMPARE(opened.printed(u"PageSize Blue SharpnessIntensity"_s), lastSize + u" 1 2.50"_s);
}

// One panel moves its controls each time, on the model that lacks some of them.
void PrintDialogTest::panelIsToldOnceThatItIsShown()
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    const OpenedDialog complete(setup);
    setup.ppdFile = std::nullopt;
    const OpenedDialog reduced(setup);
    for (const int page : {2, 0, 2, 1, 2}) {
        complete.dialog->showPage(page);
        reduced.dialog->showPage(page);
    }
    QCOMPARE(reduced.control(16)->y(), complete.control(16)->y() - 100);
}

void PrintDialogTest::missingFormDisablesOnePanel()
{
    const QString form = QStringLiteral(CORVEL_PDE_DIR "/Corvel9031.bundle/Contents/Resources/corvelPDE.ui");
    QVERIFY(QFile::rename(form, form + u".away"_s));
    const auto back = qScopeGuard([form] { QFile::rename(form + u".away"_s, form); });
    const OpenedDialog opened(mode_);
    QVERIFY(opened.message().contains(u"Color Adjustments"_s));
    QVERIFY(!opened.control(1));
    opened.dialog->showPage(1);
    opened.type(81, u"3"_s);
    opened.dialog->showPage(opened.dialog->pageCount() - 1);
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.printed(u"SharpnessRadius Red"_s), u"3 0"_s);
}

void PrintDialogTest::missingBundle()
{
    const QByteArray path = qgetenv("CORVEL_PDE_PATH");
    qputenv("CORVEL_PDE_PATH", QFile::encodeName(config_->path()));
    const auto back = qScopeGuard([path] { qputenv("CORVEL_PDE_PATH", path); });
    const OpenedDialog opened;
    QVERIFY(opened.message().contains(u"Corvel9031.bundle"_s));
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options().size(), 17); // on the dialog's own page
}
