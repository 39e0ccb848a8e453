// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HelpWindow.h"
#include "OpenedDialog.h"
#include "PrintWorker.h"
#include "SystemLog.h"
#include "ViewTags.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <utility>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(PanelMode)

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

/// The dialog with the plug-in from its bundle and the built-in printer, driven as a user drives it.
class PrintDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void printsWhatTheUserChose();
    void damagedPhoto();
    void conflicts();
    void returnBelongsToTheField();
    void printsByKeyFromAnywhere();
    void pagesTurnFromAnywhere();
    void openingOptionsAreShown();
    void photosThatCannotBeOpenedAreNamed();
    void pageSize();
    void summaryFollowsTheJob();
    void summaryOfSeveralPhotos();
    void help();
    void tabOrderAndNames();
    void wholeFlowByKeyboard();
    void panelIsToldOnceThatItIsShown();
    void missingFormDisablesOnePanel();
    void missingBundle();
    void escapeClosesOneThing();
    void cancelLeavesNothing();

private:
    std::shared_ptr<RecordingFeedback> feedback_;
    std::unique_ptr<QTemporaryDir> config_;
};

void PrintDialogTest::initTestCase_data()
{
    QTest::addColumn<PanelMode>("mode");
    QTest::newRow("constraint") << PanelMode::Constraint;
    QTest::newRow("settings") << PanelMode::Settings;
}

void PrintDialogTest::init()
{
    feedback_ = std::make_shared<RecordingFeedback>();
    pdekit::Feedback::install(feedback_);
    pdekit::setSystemLogSink([](const QString &) {});
    config_ = std::make_unique<QTemporaryDir>(); // what is printed with is kept
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_->path()));
}

// Sliders, typed numbers, radio buttons on all three pages; the same ticket in both modes.
void PrintDialogTest::printsWhatTheUserChose()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(mode);
    opened.type(81, u"-12"_s);
    QTest::keyClick(opened.control(7), Qt::Key_Right);
    opened.dialog->showPage(1);
    opened.type(82, u"1.5"_s);
    opened.dialog->showPage(2);
    opened.click(u"fine"_s);
    opened.click(u"matte"_s);
    auto *slider = qobject_cast<QSlider *>(opened.control(3));
    for (int i = 0; i < 7; ++i)
        QTest::keyClick(slider, Qt::Key_Left);
    opened.click(u"print"_s);
    QTRY_VERIFY(opened.hasPrinted());
    const QJsonObject options = opened.options();
    const QMap<QString, QString> expected = {
        {u"Red"_s, u"-12"_s},      {u"Gamma"_s, u"1"_s},        {u"SharpnessIntensity"_s, u"1.50"_s},
        {u"Quality"_s, u"Fine"_s}, {u"Overcoat"_s, u"Matte"_s}, {u"MatteValue"_s, u"-7"_s},
        {u"Blue"_s, u"0"_s}};
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry)
        QCOMPARE(options[entry.key()].toString(), entry.value());
    QCOMPARE(options.size(), 16); // fifteen of the panels, and the page size
    QTRY_VERIFY(opened.dialog->message().contains(u"sample.pdf"_s));
}

// It is printed once the user has seen it and wants it. Whoever is faster than the check is asked by the
// worker.
void PrintDialogTest::damagedPhoto()
{
    QFETCH_GLOBAL(PanelMode, mode);
    QFile sample(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    QFile damaged(config_->filePath(u"sample.jpg"_s));
    QVERIFY(sample.open(QFile::ReadOnly) && damaged.open(QFile::WriteOnly));
    const QByteArray content = sample.readAll();
    damaged.write(QByteArray(content).replace(content.size() / 2, 4096, QByteArray(4096, '\0')));
    damaged.close();
    PrintDialogSetup setup = setupFor(mode);
    setup.photos.append(*Photo::open(damaged.fileName()));

    PrintWorker worker;
    QSignalSpy finished(&worker, &PrintWorker::finished);
    const QString folder = config_->filePath(u"unseen"_s);
    worker.print({{setup.photos.at(0), {}}, {*Photo::open(damaged.fileName()), {}}}, {{}, folder}, {});
    QVERIFY(finished.wait());
    QVERIFY(finished.at(0).at(0).value<PrintOutcome>().hasDamaged);
    QVERIFY(!QFile::exists(folder));

    const OpenedDialog opened(setup);
    QTRY_VERIFY(setup.photos.at(1).isChecked());
    opened.click(u"print"_s);
    QVERIFY2(opened.dialog->message().startsWith(u"sample.jpg is damaged"_s),
             qPrintable(opened.dialog->message()));
    QVERIFY(opened.find<QLabel>(u"photoLabel"_s)->text().startsWith(u"sample.jpg (2 of 2)\nDamaged"_s));
    opened.click(u"print"_s);
    QVERIFY(!QFile::exists(opened.folder.filePath(u"out"_s)));
    opened.click(u"messageAction"_s);
    QTRY_VERIFY(QFile::exists(opened.folder.filePath(u"out/sample-2.pdf"_s)));
    QTRY_VERIFY(opened.dialog->message().startsWith(u"Printed 2 photos"_s));
}

// A forbidden choice: refused at once, or when all of them are weighed against each other. A job that is
// begun says so in the place of the message.
void PrintDialogTest::conflicts()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(mode);
    opened.dialog->showPage(2);
    opened.click(u"matte"_s);
    const bool refusedAtOnce = mode == PanelMode::Constraint;
    QCOMPARE(opened.find<QRadioButton>(u"glossy"_s)->isChecked(), refusedAtOnce);
    QCOMPARE(feedback_->beeps, refusedAtOnce ? 1 : 0);
    if (!refusedAtOnce)
        opened.click(u"print"_s);
    QVERIFY(opened.dialog->message().contains(u"Quality"_s) &&
            opened.dialog->message().contains(u"Standard"_s));
}

void PrintDialogTest::returnBelongsToTheField()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(mode);
    opened.type(81, u"5"_s);
    QTest::keyClick(opened.control(81), Qt::Key_Return);
    QCOMPARE(opened.dialog->message(), QString());
    QTest::keyClick(opened.control(1), Qt::Key_Return);
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"Red"_s].toString(), u"5"_s);
}

void PrintDialogTest::printsByKeyFromAnywhere()
{
    for (const QString &name : {u"printer"_s, u"pageSize"_s, u"copies"_s, u"folder"_s, u"redSlider"_s}) {
        for (const Qt::Key key : {Qt::Key_P, Qt::Key_Enter}) {
            const OpenedDialog opened(PanelMode::Constraint);
            auto *widget = opened.find<QWidget>(name);
            widget->setFocus();
            // With the text that a keyboard gives it, which list boxes take for a search.
            if (key == Qt::Key_P)
                QTest::sendKeyEvent(QTest::Click, widget, key, u"\x10"_s, Qt::ControlModifier);
            else
                QTest::keyClick(widget, key);
            QTRY_VERIFY2(opened.hasPrinted(), qPrintable(name));
        }
    }
}

void PrintDialogTest::pagesTurnFromAnywhere()
{
    const OpenedDialog opened(PanelMode::Constraint);
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

void PrintDialogTest::openingOptionsAreShown()
{
    QFETCH_GLOBAL(PanelMode, mode);
    PrintDialogSetup setup = setupFor(mode);
    setup.options = {{u"Red"_s, u"+3"_s}, {u"Nope"_s, u"1"_s}};
    const OpenedDialog opened(setup);
    QCOMPARE(opened.fieldText(81), u"3"_s);
    QCOMPARE(qobject_cast<QSlider *>(opened.control(1))->value(), 3);
    QVERIFY(opened.dialog->message().contains(u"Nope"_s));
}

void PrintDialogTest::photosThatCannotBeOpenedAreNamed()
{
    QFETCH_GLOBAL(PanelMode, mode);
    PrintDialogSetup setup = setupFor(mode);
    setup.photoFailures = {u"\"a.jpg\" is empty."_s, u"\"b.jpg\" is damaged."_s};
    setup.copies = 4;
    const OpenedDialog opened(setup);
    QVERIFY2(opened.dialog->message().contains(u"\"a.jpg\" is empty.\n\"b.jpg\" is damaged."_s),
             qPrintable(opened.dialog->message()));
    QCOMPARE(opened.find<QSpinBox>(u"copies"_s)->value(), 4);
}

void PrintDialogTest::pageSize()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(mode);
    auto *preview = opened.find<QWidget>(u"preview"_s);
    QTRY_VERIFY(opened.dialog->isPreviewReady());
    const QImage before = preview->grab().toImage();
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    sizes->setFocus();
    QTest::keyClick(sizes, Qt::Key_End);
    const QString chosen = sizes->currentData().toString();
    QVERIFY(chosen != u"4x6.Fullbleed"_s);
    QVERIFY(preview->grab().toImage() != before);
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"PageSize"_s].toString(), chosen);
}

// The panel's own; the dialog's own on the page that is the dialog's, and where the panel's cannot be opened.
// By page, each page in the order of its panel. What is not on a page comes first, and changes while it is
// being looked at.
void PrintDialogTest::summaryFollowsTheJob()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(mode);
    opened.type(81, u"-12"_s);
    opened.dialog->showPage(3);
    QStringList expected = {u"Paper size: 4 x 6 in, borderless"_s,
                            u"Copies: 1"_s,
                            u"Placement: Fit on the page"_s,
                            u"Brightness: 0"_s,
                            u"Contrast: 0"_s,
                            u"Saturation: 0"_s,
                            u"Gamma: 0"_s,
                            u"Red: -12"_s,
                            u"Green: 0"_s,
                            u"Blue: 0"_s,
                            u"Adjust colors: On"_s,
                            u"Sharpen photo: On"_s,
                            u"Sharpness Intensity: 1.00"_s,
                            u"Sharpness Radius: 1"_s,
                            u"Surface Finish: Glossy"_s,
                            u"Print Quality: Standard"_s,
                            u"Use settings from printer panel: Off"_s,
                            u"Matte Level: 0"_s};
    QCOMPARE(summaryOf(opened), expected);

    QTest::keyClick(opened.find<QSpinBox>(u"copies"_s), Qt::Key_Up);
    expected[1] = u"Copies: 2"_s;
    QCOMPARE(summaryOf(opened), expected);
    opened.click(u"turn"_s);
    QTest::keyClick(opened.find<QComboBox>(u"scaling"_s), Qt::Key_Down);
    expected[2] = u"Placement: Fill the page, turned by 90°"_s;
    QCOMPARE(summaryOf(opened), expected);
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    QTest::keyClick(sizes, Qt::Key_End);
    QVERIFY(summaryOf(opened).constFirst().endsWith(sizes->currentText()) && summaryOf(opened) != expected);
    for (int i = 0; i < 3; ++i) // the page, the copies, Red
        QTest::keyClick(opened.dialog.get(), Qt::Key_Z, Qt::ControlModifier);
    expected[1] = u"Copies: 1"_s;
    expected[7] = u"Red: 0"_s;
    QCOMPARE(summaryOf(opened), expected);
}

void PrintDialogTest::summaryOfSeveralPhotos()
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.photos.append(setup.photos.constFirst());
    const OpenedDialog opened(setup);
    opened.dialog->showPage(3);
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
    const OpenedDialog opened(PanelMode::Constraint);
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
    const OpenedDialog opened(PanelMode::Constraint);
    QWidget *first = opened.find<QWidget>(u"printer"_s);
    const auto round = [&](QStringList &order) {
        first->setFocus();
        do {
            QWidget *widget = QApplication::focusWidget();
            QVERIFY(widget);
            const int tag = pdekit::tag(widget);
            order << (tag == pdekit::noTag ? widget->objectName() : QString::number(tag));
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            // A row of tabs is named by its tabs.
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty() || widget->inherits("QTabBar"),
                     qPrintable(order.constLast()));
            QTest::keyClick(widget, Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && order.size() < 60);
    };
    const QStringList before = {u"printer"_s, u"presets"_s, u"managePresets"_s, u"pageSize"_s,
                                u"copies"_s,  u"folder"_s,  u"browse"_s,        u"qt_tabwidget_tabbar"_s};
    const QStringList after = {u"help"_s,    u"save"_s, u"cancel"_s,   u"print"_s,      u"preview"_s,
                               u"scaling"_s, u"turn"_s, u"addPhoto"_s, u"removePhoto"_s};
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

// From the opened window to the printed photo by nothing but keys, each to what has the focus.
void PrintDialogTest::wholeFlowByKeyboard()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const OpenedDialog opened(mode);
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    };
    const auto tabTo = [&](const auto &isThere) {
        for (int i = 0; i < 60 && !isThere(QApplication::focusWidget()); ++i)
            press(Qt::Key_Tab);
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
    QVERIFY(tabTo(named(u"pageSize"_s)));
    press(Qt::Key_End);
    QVERIFY(tabTo(tagged(3)));
    press(Qt::Key_Right);
    QVERIFY(tabTo(named(u"qt_tabwidget_tabbar"_s)));
    press(Qt::Key_Right);
    QVERIFY(tabTo(tagged(82)));
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_Period, Qt::Key_5})
        press(key); // the field's text is selected, and these take its place
    QVERIFY(tabTo(named(u"scaling"_s)));
    press(Qt::Key_Down);
    QVERIFY(tabTo(named(u"preview"_s)));
    press(Qt::Key_P, Qt::ControlModifier);
    QTRY_VERIFY(opened.hasPrinted());
    const QString lastSize = opened.find<QComboBox>(u"pageSize"_s)->currentData().toString();
    QVERIFY(lastSize != u"4x6.Fullbleed"_s);
    QCOMPARE(opened.options()[u"PageSize"_s].toString(), lastSize);
    QCOMPARE(opened.options()[u"Blue"_s].toString(), u"1"_s);
    QCOMPARE(opened.options()[u"SharpnessIntensity"_s].toString(), u"2.50"_s);
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
    QFETCH_GLOBAL(PanelMode, mode);
    const QString form = QStringLiteral(CORVEL_PDE_DIR "/Corvel9031.bundle/Contents/Resources/corvelPDE.ui");
    QVERIFY(QFile::rename(form, form + u".away"_s));
    const auto back = qScopeGuard([form] { QFile::rename(form + u".away"_s, form); });
    const OpenedDialog opened(mode);
    QVERIFY(opened.dialog->message().contains(u"Color Adjustments"_s));
    QVERIFY(!opened.control(1));
    opened.dialog->showPage(1);
    opened.type(81, u"3"_s);
    opened.dialog->showPage(opened.dialog->pageCount() - 1);
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"SharpnessRadius"_s].toString(), u"3"_s);
    QCOMPARE(opened.options()[u"Red"_s].toString(), u"0"_s);
}

void PrintDialogTest::missingBundle()
{
    const QByteArray path = qgetenv("CORVEL_PDE_PATH");
    qputenv("CORVEL_PDE_PATH", QFile::encodeName(config_->path()));
    const auto back = qScopeGuard([path] { qputenv("CORVEL_PDE_PATH", path); });
    const OpenedDialog opened(PanelMode::Constraint);
    QVERIFY(opened.dialog->message().contains(u"Corvel9031.bundle"_s));
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options().keys(), QStringList{u"PageSize"_s});
}

// As Wayland delivers it: the list closes when it is asked whether it wants the key, which then comes.
void PrintDialogTest::escapeClosesOneThing()
{
    const OpenedDialog opened(PanelMode::Constraint);
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    sizes->showPopup();
    QTRY_VERIFY(sizes->view()->isVisible());
    QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(sizes->view(), &question);
    QTRY_VERIFY(!sizes->view()->isVisible());
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(sizes, &press);
    QTest::keyRelease(sizes, Qt::Key_Escape);
    QVERIFY(opened.dialog->isVisible());
    QTest::keyClick(sizes, Qt::Key_Escape);
    QVERIFY(opened.dialog->isHidden());
}

void PrintDialogTest::cancelLeavesNothing()
{
    const OpenedDialog opened(PanelMode::Settings);
    opened.type(81, u"9"_s);
    QTest::keyClick(opened.dialog.get(), Qt::Key_Escape);
    QVERIFY(opened.dialog->isHidden());
    QVERIFY(!opened.hasPrinted());
    QVERIFY(QDir(config_->path()).isEmpty());
}

QTEST_MAIN(PrintDialogTest)
#include "PrintDialogTest.moc"
