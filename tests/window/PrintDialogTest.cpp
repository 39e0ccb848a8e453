// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintDialog.h"
#include "Bundle.h"
#include "Feedback.h"
#include "SystemLog.h"
#include "ViewTags.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabWidget>

#include <algorithm>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

class QuietFeedback : public pdekit::Feedback
{
public:
    void beep() override { ++beeps; }
    void alert(const pdekit::Alert &) override {}
    bool openHelpBook(const pdekit::Bundle &, const QString &name) override
    {
        helpBooks << name;
        return true;
    }

    int beeps = 0;
    QStringList helpBooks;
};

/// A dialog as the program opens it, with a folder of its own for what it prints.
class OpenedDialog
{
public:
    explicit OpenedDialog(PanelMode mode, const QString &ppd = u"" CORVEL_SIBLING_PPD ""_s,
                          const QList<QPair<QString, QString>> &options = {})
    {
        const auto photo = Photo::open(u"" CORVEL_SAMPLE_PHOTO ""_s);
        PrintDialogSetup setup;
        setup.photos = {*photo};
        setup.mode = mode;
        setup.ppdFile = ppd;
        setup.options = options;
        setup.outputFolder = folder.filePath(u"out"_s);
        dialog = std::make_unique<PrintDialog>(setup);
        dialog->show();
        dialog->activateWindow();
        if (!QTest::qWaitForWindowActive(dialog.get()))
            qFatal("the dialog did not come up");
    }

    template <class Widget>
    Widget *find(const QString &name) const
    {
        return dialog->findChild<Widget *>(name);
    }
    /// The control of the page that is shown.
    QWidget *control(int tag) const
    {
        return pdekit::viewWithTag(find<QTabWidget>(u"panels"_s)->currentWidget(), tag);
    }
    void type(int tag, const QString &text) const
    {
        auto *field = qobject_cast<QLineEdit *>(control(tag));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    QJsonObject options() const
    {
        QFile ticket(folder.filePath(u"out/sample.ticket.json"_s));
        return ticket.open(QIODevice::ReadOnly)
                   ? QJsonDocument::fromJson(ticket.readAll()).object()[u"options"_s].toObject()
                   : QJsonObject();
    }
    bool hasPrinted() const { return QFile::exists(folder.filePath(u"out/sample.ticket.json"_s)); }

    QTemporaryDir folder;
    std::unique_ptr<PrintDialog> dialog;
};

} // namespace

Q_DECLARE_METATYPE(PanelMode)

class PrintDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void printsWhatTheUserChose();
    void conflicts();
    void returnBelongsToTheField();
    void settingsAreKept();
    void openingOptionsAreShown();
    void pageSize();
    void help();
    void tabOrderAndNames();
    void missingFormDisablesOnePanel();
    void missingBundle();
    void cancelLeavesNothing();

private:
    std::shared_ptr<QuietFeedback> feedback_;
    QTemporaryDir config_;
};

void PrintDialogTest::initTestCase_data()
{
    QTest::addColumn<PanelMode>("mode");
    QTest::newRow("constraint") << PanelMode::Constraint;
    QTest::newRow("settings") << PanelMode::Settings;
}

void PrintDialogTest::init()
{
    feedback_ = std::make_shared<QuietFeedback>();
    pdekit::Feedback::install(feedback_);
    pdekit::setSystemLogSink([](const QString &) {});
    QDir(config_.path()).removeRecursively();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_.path()));
}

// Sliders, typed numbers, radio buttons on all three pages; the same ticket in both modes.
void PrintDialogTest::printsWhatTheUserChose()
{
    QFETCH_GLOBAL(PanelMode, mode);
    OpenedDialog opened(mode);
    opened.type(81, u"-12"_s);
    QTest::keyClick(opened.control(7), Qt::Key_Right);
    opened.dialog->showPage(1);
    opened.type(82, u"1.5"_s);
    opened.dialog->showPage(2);
    QTest::mouseClick(opened.find<QRadioButton>(u"fine"_s), Qt::LeftButton, {}, {8, 10});
    QTest::mouseClick(opened.find<QRadioButton>(u"matte"_s), Qt::LeftButton, {}, {8, 10});
    auto *slider = qobject_cast<QSlider *>(opened.control(3));
    for (int i = 0; i < 7; ++i)
        QTest::keyClick(slider, Qt::Key_Left);
    QTest::keyClick(opened.dialog.get(), Qt::Key_P, Qt::ControlModifier);
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

// A forbidden choice: refused at once, or when all of them are weighed against each other.
void PrintDialogTest::conflicts()
{
    QFETCH_GLOBAL(PanelMode, mode);
    OpenedDialog opened(mode);
    opened.dialog->showPage(2);
    QTest::mouseClick(opened.find<QRadioButton>(u"matte"_s), Qt::LeftButton, {}, {8, 10});
    const bool refusedAtOnce = mode == PanelMode::Constraint;
    QCOMPARE(opened.find<QRadioButton>(u"glossy"_s)->isChecked(), refusedAtOnce);
    QCOMPARE(feedback_->beeps, refusedAtOnce ? 1 : 0);
    if (!refusedAtOnce)
        QTest::mouseClick(opened.find<QPushButton>(u"print"_s), Qt::LeftButton);
    QVERIFY(opened.dialog->message().contains(u"Quality"_s) &&
            opened.dialog->message().contains(u"Standard"_s));
    QTest::qWait(50);
    QVERIFY(!opened.hasPrinted());
}

void PrintDialogTest::returnBelongsToTheField()
{
    QFETCH_GLOBAL(PanelMode, mode);
    OpenedDialog opened(mode);
    opened.type(81, u"5"_s);
    QTest::keyClick(opened.control(81), Qt::Key_Return);
    QTest::qWait(50);
    QVERIFY(!opened.hasPrinted());
    QTest::keyClick(opened.control(1), Qt::Key_Return);
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"Red"_s].toString(), u"5"_s);
}

void PrintDialogTest::settingsAreKept()
{
    QFETCH_GLOBAL(PanelMode, mode);
    {
        OpenedDialog opened(mode, u"" CORVEL_SIBLING_PPD ""_s,
                            {{u"Quality"_s, u"Fine"_s}, {u"Overcoat"_s, u"Matte"_s}});
        opened.type(81, u"9"_s);
        QTest::mouseClick(opened.find<QPushButton>(u"save"_s), Qt::LeftButton);
    }
    OpenedDialog again(mode);
    QCOMPARE(qobject_cast<QLineEdit *>(again.control(81))->text(), u"9"_s);
    again.dialog->showPage(2);
    QVERIFY(again.find<QRadioButton>(u"matte"_s)->isChecked());
    again.dialog->print();
    QTRY_VERIFY(again.hasPrinted());
    QCOMPARE(again.options()[u"Overcoat"_s].toString(), u"Matte"_s);
}

void PrintDialogTest::openingOptionsAreShown()
{
    QFETCH_GLOBAL(PanelMode, mode);
    OpenedDialog opened(mode, u"" CORVEL_SIBLING_PPD ""_s, {{u"Red"_s, u"+3"_s}, {u"Nope"_s, u"1"_s}});
    QCOMPARE(qobject_cast<QLineEdit *>(opened.control(81))->text(), u"3"_s);
    QCOMPARE(qobject_cast<QSlider *>(opened.control(1))->value(), 3);
    QVERIFY(opened.dialog->message().contains(u"Nope"_s));
}

void PrintDialogTest::pageSize()
{
    QFETCH_GLOBAL(PanelMode, mode);
    OpenedDialog opened(mode);
    auto *sizes = opened.find<QComboBox>(u"pageSize"_s);
    sizes->setFocus();
    QTest::keyClick(sizes, Qt::Key_End);
    const QString chosen = sizes->currentData().toString();
    QVERIFY(chosen != u"4x6.Fullbleed"_s);
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"PageSize"_s].toString(), chosen);
}

void PrintDialogTest::help()
{
    OpenedDialog opened(PanelMode::Constraint);
    QTest::keyClick(opened.dialog.get(), Qt::Key_F1);
    QCOMPARE(feedback_->helpBooks, QStringList{u"Corvel9031Help"_s});
}

void PrintDialogTest::tabOrderAndNames()
{
    OpenedDialog opened(PanelMode::Constraint);
    QWidget *first = opened.find<QWidget>(u"printer"_s);
    first->setFocus();
    QStringList order;
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
    QStringList expected = {u"printer"_s, u"pageSize"_s, u"copies"_s,
                            u"folder"_s,  u"browse"_s,   u"qt_tabwidget_tabbar"_s,
                            u"32"_s};
    for (int tag = 1; tag <= 7; ++tag)
        expected << QString::number(tag) << QString::number(tag + 80);
    expected << QStringList{u"16"_s, u"help"_s, u"save"_s, u"cancel"_s, u"print"_s};
    QCOMPARE(order, expected);
}

void PrintDialogTest::missingFormDisablesOnePanel()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const QString form = QStringLiteral(CORVEL_PDE_DIR "/Corvel9031.bundle/Contents/Resources/corvelPDE.ui");
    QVERIFY(QFile::rename(form, form + u".away"_s));
    const auto back = qScopeGuard([form] { QFile::rename(form + u".away"_s, form); });
    OpenedDialog opened(mode);
    QVERIFY(opened.dialog->message().contains(u"Color Adjustments"_s));
    QVERIFY(!opened.control(1));
    opened.dialog->showPage(1);
    opened.type(81, u"3"_s);
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"SharpnessRadius"_s].toString(), u"3"_s);
    QCOMPARE(opened.options()[u"Red"_s].toString(), u"0"_s);
}

void PrintDialogTest::missingBundle()
{
    const QByteArray path = qgetenv("CORVEL_PDE_PATH");
    qputenv("CORVEL_PDE_PATH", QFile::encodeName(config_.path()));
    const auto back = qScopeGuard([path] { qputenv("CORVEL_PDE_PATH", path); });
    OpenedDialog opened(PanelMode::Constraint);
    QVERIFY(opened.dialog->message().contains(u"Corvel9031.bundle"_s));
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options().keys(), QStringList{u"PageSize"_s});
}

void PrintDialogTest::cancelLeavesNothing()
{
    OpenedDialog opened(PanelMode::Settings);
    opened.type(81, u"9"_s);
    QTest::keyClick(opened.dialog.get(), Qt::Key_Escape);
    QVERIFY(opened.dialog->isHidden());
    QVERIFY(!opened.hasPrinted());
    QVERIFY(QDir(config_.path()).isEmpty());
}

QTEST_MAIN(PrintDialogTest)
#include "PrintDialogTest.moc"
