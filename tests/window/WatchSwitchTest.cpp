// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtWidgets/QCheckBox>

using namespace testing_support;

/// The switch that prints the photos that arrive in a folder while the window is open.
class WatchSwitchTest : public WindowTest
{
    Q_OBJECT

private:
    static bool arrive(const QString &path)
    {
        return QFile::copy(QStringLiteral(CORVEL_SAMPLE_PHOTO), path + u".part"_s) &&
               QFile::rename(path + u".part"_s, path);
    }

private Q_SLOTS:
    void photosArePrintedWhileItIsOn()
    {
        qputenv("XDG_STATE_HOME", QFile::encodeName(config_->filePath(u"state"_s)));
        const QTemporaryDir arriving;
        QVERIFY(arrive(arriving.filePath(u"old.jpg"_s)));
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.photos = {*Photo::open(arriving.filePath(u"old.jpg"_s))};
        const OpenedDialog opened(setup);
        const QString output = opened.folder.filePath(u"out"_s);
        const auto isPrinted = [&output](const QString &name) {
            return QFile::exists(output + u'/' + name + u".ticket.json"_s);
        };
        opened.click(u"more"_s);
        auto *toggle = opened.find<QCheckBox>(u"watchFolder"_s);
        const auto *news = opened.find<QLabel>(u"watchNews"_s);
        QVERIFY(toggle->isVisible() && toggle->isEnabled() && !news->isVisible());
        QVERIFY(opened.find<QPushButton>(u"watchedFolder"_s)->text().contains(arriving.path()));

        toggle->setFocus();
        opened.press(Qt::Key_Space);
        QTRY_VERIFY(toggle->isChecked() && news->isVisible());
        QVERIFY(!opened.find<QPushButton>(u"watchedFolder"_s)->isEnabled());
        opened.type(81, u"9"_s); // does not count any more
        QVERIFY(arrive(arriving.filePath(u"new.jpg"_s)));
        QTRY_VERIFY_WITH_TIMEOUT(isPrinted(u"new"_s), 20000);
        QTRY_VERIFY2(news->text().contains(u"new.jpg"_s), qPrintable(news->text()));
        QFile ticket(output + u"/new.ticket.json"_s);
        QVERIFY(ticket.open(QIODevice::ReadOnly) && ticket.readAll().contains("\"Red\": \"0\""));
        QVERIFY(!isPrinted(u"old"_s)); // was there before

        opened.click(u"removePhoto"_s); // it can be switched off, and on, without a photo as well
        QVERIFY(!opened.find<QWidget>(u"turn"_s)->isEnabled());
        toggle->setFocus();
        opened.press(Qt::Key_Space);
        QVERIFY(!toggle->isChecked() && !news->isVisible());
        QVERIFY(arrive(arriving.filePath(u"late.jpg"_s)));
        QTest::qWait(500);
        QVERIFY(!isPrinted(u"late"_s));
    }

    void theOutputFolderIsRefused()
    {
        qputenv("XDG_STATE_HOME", QFile::encodeName(config_->filePath(u"state"_s)));
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        const OpenedDialog opened(setup);
        opened.find<QLineEdit>(u"folder"_s)
            ->setText(QFileInfo(QStringLiteral(CORVEL_SAMPLE_PHOTO)).absolutePath());
        opened.click(u"more"_s);
        auto *toggle = opened.find<QCheckBox>(u"watchFolder"_s);
        toggle->setFocus();
        opened.press(Qt::Key_Space);
        QVERIFY(!toggle->isChecked());
        QVERIFY2(opened.message().contains(u"watched folder"_s), qPrintable(opened.message()));
    }
};

CORVEL_WIDGETS_TEST(WatchSwitchTest)
#include "WatchSwitchTest.moc"
