// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "Rows.h"
#include "TestMain.h"

#include "MessageBar.h"
#include "PreviewWidget.h"
#include "SystemLog.h"

#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

#include <algorithm>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

/// The dialog with somebody else's plug-in.
class PluginTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }

    void init()
    {
        WindowTest::init();
        qputenv("CORVEL_TEST_CALLS", QFile::encodeName(config_->filePath(u"calls"_s)));
        for (const char *name : {"CORVEL_TEST_FAULT", "CORVEL_TEST_OPTION", "CORVEL_TEST_LOOK"})
            qunsetenv(name);
    }

    void losesOnlyItsPage_data()
    {
        const auto add = rows<QString, QString>();
        add("before there is a page", u"panels:std"_s, u"no paper feed."_s);
        add("its name", u"name:platform"_s, u"no paper feed."_s);
        add("restoring", u"restore:std"_s, u"no paper feed."_s);
        add("its view", u"view:int"_s, u"without a description."_s);
        add("showing", u"willShow:std"_s, u"no paper feed."_s);
        add("the user's choice", u"act:platform"_s, u"\"Border\""_s);
        add("help", u"help:int"_s, u"\"Border\""_s);
        add("its summary", u"summary:std"_s, u"\"Border\""_s);
        add("what it looks like", u"adjustment:std"_s, u"no paper feed."_s);
    }

    void losesOnlyItsPage()
    {
        const auto [fault, word] = row<QString, QString>();
        qputenv("CORVEL_TEST_FAULT", fault.toUtf8());
        const auto opened = open();
        QCoreApplication::processEvents();
        const auto *pages = opened->find<QTabWidget>(u"panels"_s);
        const bool hasPage = pages->tabText(0).contains(u"Border"_s);
        if (hasPage && opened->control(1) && opened->control(1)->isVisible())
            chooseDeckle(*opened);
        QTest::keyClick(opened->dialog.get(), Qt::Key_F1);
        opened->dialog->showPage(pages->count() - 1);
        QTRY_VERIFY2(opened->dialog->message().contains(word), qPrintable(opened->dialog->message()));
        opened->dialog->showPage(0);
        QVERIFY(!hasPage || !opened->control(1) || !opened->control(1)->isVisible());
        opened->dialog->print();
        if (hasPage || pages->count() > 2) { // a page that is there has choices, which are missing now
            QVERIFY(!opened->hasPrinted() && pages->currentWidget()->findChild<QLabel *>());
            button(*opened, u"Print Without Them"_s)->click();
        }
        QTRY_VERIFY(opened->hasPrinted());
        // What no panel has ever shown is on the dialog's own page.
        QCOMPARE(opened->options().size(), hasPage ? 1 : 3);
    }

    void saysWhatIsMissing_data()
    {
        const auto add = rows<QString, QString>();
        add("thrown", u"save:int"_s, u"without a description"_s);
        add("reported", u"save:false"_s, u"the disk is full."_s);
    }

    void saysWhatIsMissing()
    {
        const auto [fault, word] = row<QString, QString>();
        const auto opened = open();
        chooseDeckle(*opened);
        qputenv("CORVEL_TEST_FAULT", fault.toUtf8());
        opened->click(u"save"_s);
        QVERIFY2(opened->dialog->message().contains(u"Nothing is saved."_s),
                 qPrintable(opened->dialog->message()));
        opened->dialog->print();
        QVERIFY2(opened->dialog->message().contains(word), qPrintable(opened->dialog->message()));
        QVERIFY(opened->dialog->message().contains(u"Print without these choices?"_s));
        button(*opened, u"Print Without Them"_s)->click();
        QTRY_VERIFY(opened->hasPrinted());
        QCOMPARE(opened->options().keys(), QStringList{u"PageSize"_s});
        // The page that is lost adds its own sentence, and leaves the question.
        qunsetenv("CORVEL_TEST_FAULT");
        const auto other = open();
        qputenv("CORVEL_TEST_FAULT", fault.toUtf8());
        chooseDeckle(*other);
        other->dialog->print();
        QCoreApplication::processEvents();
        button(*other, u"Print Without Them"_s)->click();
        QTRY_VERIFY(other->hasPrinted());
        QCOMPARE(other->options().keys(), QStringList{u"PageSize"_s});
    }

    void impossibleAdjustmentIsIgnored()
    {
        const auto good = open();
        auto *unchanged = good->find<PreviewWidget>(u"preview"_s);
        QTRY_VERIFY(unchanged->isComplete());
        qputenv("CORVEL_TEST_FAULT", "adjustment:false");
        QStringList log;
        const auto sink = pdekit::setSystemLogSink([&log](const QString &line) { log += line; });
        const auto opened = open();
        pdekit::setSystemLogSink([&log](const QString &line) { log += line; }); // as open() has its own
        auto *preview = opened->find<PreviewWidget>(u"preview"_s);
        QTRY_VERIFY(preview->isComplete());
        chooseDeckle(*opened);
        QTRY_VERIFY(log.size() == 1 && log.constFirst().contains(u"not a finite number"_s));
        chooseDeckle(*opened);
        QTest::keyClick(opened->control(1), Qt::Key_Home);
        QCoreApplication::processEvents();
        pdekit::setSystemLogSink(sink);
        QCOMPARE(log.size(), 1);
        QCOMPARE(preview->grab().toImage(), unchanged->grab().toImage());
    }

    void lostPageLosesItsLook()
    {
        qputenv("CORVEL_TEST_LOOK", "1");
        qputenv("CORVEL_TEST_FAULT", "help:int");
        const auto opened = open();
        auto *preview = opened->find<PreviewWidget>(u"preview"_s);
        const auto isBlack = [preview] {
            const QPoint middle = PagePainter::seenPhoto(preview->view()).center().toPoint();
            return preview->grab().toImage().pixel(middle + QPoint(0, -20)) == qRgb(0, 0, 0);
        };
        QTRY_VERIFY(preview->isComplete() && isBlack());
        QTest::keyClick(opened->dialog.get(), Qt::Key_F1);
        QTRY_VERIFY(!isBlack());
    }

    void saysWhatCouldNotBeRestored()
    {
        qputenv("CORVEL_TEST_FAULT", "restore:false");
        const auto opened = open();
        QTRY_VERIFY(opened->dialog->message().contains(u"the disk is full."_s));
        opened->dialog->print();
        QTRY_COMPARE(opened->options()[u"Border"_s].toString(), u"None"_s);
    }

    void staysUntilItMayHide()
    {
        const auto opened = open();
        const QWidget *popUp = opened->control(1);
        auto *printer = opened->find<QComboBox>(u"printer"_s);
        qputenv("CORVEL_TEST_FAULT", "shouldHide:false");
        const auto stays = [&] {
            const bool isSaid = opened->dialog->message().contains(u"\"Border\" cannot be left yet"_s);
            return isSaid && opened->dialog->isVisible() && opened->control(1) == popUp && popUp->isVisible();
        };
        opened->dialog->showPage(1);
        QVERIFY(stays());
        opened->find<MessageBar>(u"message"_s)->clear();
        printer->showPopup();
        QTest::keyClick(printer->view(), Qt::Key_Return);
        QVERIFY(stays());
        opened->find<MessageBar>(u"message"_s)->clear();
        opened->dialog->print();
        QVERIFY(stays() && !opened->hasPrinted());
        for (const bool isClosed : {false, true}) {
            opened->dialog->close();
            QVERIFY(stays());
            if (isClosed)
                button(*opened, u"Close Anyway"_s)->click();
            else
                QTest::keyClick(opened->dialog.get(), Qt::Key_Escape);
            QCOMPARE(!opened->dialog->isVisible(), isClosed);
        }
    }

    // As PrintDialogPanel.h has it. What is asked several times in a row counts once.
    void callsInOrder()
    {
        const auto calls = [this] {
            QFile file(config_->filePath(u"calls"_s));
            QStringList names;
            if (file.open(QIODevice::ReadOnly))
                names = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
            names.erase(std::unique(names.begin(), names.end()), names.end());
            file.remove();
            return names.join(u' ');
        };
        const auto opened = open();
        QCOMPARE(calls(), u"init panels name restore view willShow"_s);
        chooseDeckle(*opened);
        QCOMPARE(calls(), mode_ == PanelMode::Constraint ? u"act"_s : u"act save"_s);
        QTest::keyClick(opened->dialog.get(), Qt::Key_F1);
        QTest::keyClick(opened->dialog.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(calls(), u"help save didChange restore"_s);
        opened->dialog->showPage(1);
        opened->dialog->showPage(0);
        QCOMPARE(calls(), u"shouldHide summary"_s);
        opened->dialog->print();
        QTRY_VERIFY(opened->find<QPushButton>(u"cancel"_s)->text().remove(u'&') ==
                    u"Close"_s); // printing is over
        QCOMPARE(calls(), u"shouldHide save summary"_s);
        opened->dialog->close();
        QCOMPARE(calls(), u"shouldHide"_s);
    }

    // libcups takes back the manual feed when a tray is chosen: both belong to the step.
    void choiceChangesAnotherOne()
    {
        QFile example(QStringLiteral(CORVEL_POSTCARD_PPD));
        QFile file(config_->filePath(u"trays.ppd"_s));
        QVERIFY(example.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly));
        file.write(example.readAll().replace("Border", "InputSlot"));
        file.write("*OpenUI *ManualFeed: Boolean\n*DefaultManualFeed: False\n*ManualFeed True: \"\"\n"
                   "*ManualFeed False: \"\"\n*CloseUI: *ManualFeed\n");
        file.close();
        qputenv("CORVEL_TEST_OPTION", "InputSlot");
        const auto opened = open(file.fileName(), {{u"ManualFeed"_s, u"True"_s}});
        const auto printed = [&] {
            QDir(opened->folder.filePath(u"out"_s)).removeRecursively();
            opened->dialog->print();
            return QTest::qWaitFor(
                       [&] { return opened->hasPrinted() && opened->find<QWidget>(u"print"_s)->isEnabled(); })
                       ? opened->options()
                       : QJsonObject();
        };
        const QJsonObject before = printed();
        chooseDeckle(*opened);
        const QJsonObject after = printed();
        if (mode_ == PanelMode::Constraint)
            QCOMPARE(after.keys(), QStringList({u"InputSlot"_s, u"PageSize"_s, u"Tone"_s}));
        opened->undo();
        QCOMPARE(printed(), before);
        opened->redo();
        QCOMPARE(printed(), after);
    }

private:
    std::unique_ptr<OpenedDialog> open(const QString &ppd = QStringLiteral(CORVEL_POSTCARD_PPD),
                                       const QList<QPair<QString, QString>> &options = {}) const
    {
        PrintDialogSetup setup = setupFor(mode_);
        setup.ppdFile = ppd;
        setup.options = options;
        return std::make_unique<OpenedDialog>(setup);
    }

    static void chooseDeckle(const OpenedDialog &opened)
    {
        auto *popUp = qobject_cast<QComboBox *>(opened.control(1));
        QVERIFY(popUp);
        popUp->setFocus();
        QTest::keyClick(popUp, Qt::Key_End);
    }

    /// Null where there is none to be seen.
    static QPushButton *button(const OpenedDialog &opened, const QString &text)
    {
        const auto buttons = opened.dialog->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isVisible() && button->text().remove(u'&') == text)
                return button;
        }
        return nullptr;
    }
};

CORVEL_WIDGETS_TEST(PluginTest)
#include "PluginTest.moc"
