// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "TestMain.h"

#include "MessageBar.h"

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
class PluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<PanelMode>("mode");
        QTest::newRow("constraint handling") << PanelMode::Constraint;
        QTest::newRow("print settings") << PanelMode::Settings;
    }

    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_->path()));
        qputenv("CORVEL_TEST_CALLS", QFile::encodeName(folder_->filePath(u"calls"_s)));
        qunsetenv("CORVEL_TEST_FAULT");
        pdekit::Feedback::install(std::make_shared<RecordingFeedback>());
    }

    void losesOnlyItsPage_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("word");
        QTest::newRow("before there is a page") << u"panels:std"_s << u"no paper feed."_s;
        QTest::newRow("its name") << u"name:platform"_s << u"no paper feed."_s;
        QTest::newRow("restoring") << u"restore:std"_s << u"no paper feed."_s;
        QTest::newRow("its view") << u"view:int"_s << u"without a description."_s;
        QTest::newRow("showing") << u"willShow:std"_s << u"no paper feed."_s;
        QTest::newRow("the user's choice") << u"act:platform"_s << u"\"Border\""_s;
        QTest::newRow("help") << u"help:int"_s << u"\"Border\""_s;
        QTest::newRow("its summary") << u"summary:std"_s << u"\"Border\""_s;
    }

    void losesOnlyItsPage()
    {
        QFETCH(QString, fault);
        QFETCH(QString, word);
        qputenv("CORVEL_TEST_FAULT", fault.toUtf8());
        const auto opened = open();
        const auto *pages = opened->find<QTabWidget>(u"panels"_s);
        if (opened->control(1) && opened->control(1)->isVisible())
            chooseDeckle(*opened);
        QTest::keyClick(opened->dialog.get(), Qt::Key_F1);
        opened->dialog->showPage(pages->count() - 1);
        QTRY_VERIFY2(opened->dialog->message().contains(word), qPrintable(opened->dialog->message()));
        opened->dialog->showPage(0);
        QVERIFY(!opened->control(1) || !opened->control(1)->isVisible());
        opened->dialog->print();
        if (pages->count() > 1) { // a page that is there has choices, which are missing now
            QVERIFY(!opened->hasPrinted() && pages->currentWidget()->findChild<QLabel *>());
            button(*opened, u"Print Without Them"_s)->click();
        }
        QTRY_VERIFY(opened->hasPrinted());
        QCOMPARE(opened->options().keys(), QStringList{u"PageSize"_s});
    }

    void saysWhatIsMissing_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("word");
        QTest::newRow("thrown") << u"save:int"_s << u"without a description"_s;
        QTest::newRow("reported") << u"save:false"_s << u"the disk is full."_s;
    }

    void saysWhatIsMissing()
    {
        QFETCH(QString, fault);
        QFETCH(QString, word);
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
        QFETCH_GLOBAL(PanelMode, mode);
        const auto calls = [this] {
            QFile file(folder_->filePath(u"calls"_s));
            QStringList names;
            if (file.open(QIODevice::ReadOnly))
                names = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
            names.erase(std::unique(names.begin(), names.end()), names.end());
            file.remove();
            return names.join(u' ');
        };
        const auto opened = open();
        QCOMPARE(calls(), u"init panels name restore save restore view willShow"_s);
        chooseDeckle(*opened);
        QCOMPARE(calls(), mode == PanelMode::Constraint ? u"act"_s : u"act save"_s);
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

private:
    static std::unique_ptr<OpenedDialog> open()
    {
        QFETCH_GLOBAL(PanelMode, mode);
        PrintDialogSetup setup = setupFor(mode);
        setup.ppdFile = QStringLiteral(CORVEL_POSTCARD_PPD);
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

    std::unique_ptr<QTemporaryDir> folder_;
};

CORVEL_WIDGETS_TEST(PluginTest)
#include "PluginTest.moc"
