// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MessageBar.h"
#include "OpenedDialog.h"
#include "PhotoPane.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QProgressBar>

using namespace testing_support;

/// The window while it prints many photos, and afterwards. A run progresses in the window only when events
/// are handled, so that what is done right after its start comes while it prints.
class PrintingTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (int i = 1; i <= count; ++i)
            QVERIFY(QFile::copy(QStringLiteral(CORVEL_SAMPLE_PHOTO),
                                photos_.filePath(u"photo%1.jpg"_s.arg(i, 2, 10, QLatin1Char('0')))));
    }

    void folderIsChosen()
    {
        const OpenedDialog opened(setup());
        auto *field = opened.find<QLineEdit>(u"folder"_s);
        const QString before = field->text();
        for (const QString &chosen : {QString(), photos_.path()}) {
            QTimer::singleShot(0, opened.dialog.get(), [&chosen] {
                auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
                files->selectFile(chosen);
                static_cast<QDialog *>(files)->done(chosen.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
            });
            opened.click(u"browse"_s);
            QCOMPARE(field->text(), chosen.isEmpty() ? before : chosen);
        }
        opened.dialog->print();
        QTRY_VERIFY(isIdle(opened));
        QVERIFY(QFile::exists(photos_.filePath(u"photo01.ticket.json"_s)));
        for (const QString &name : QDir(photos_.path()).entryList({u"*.pdf"_s, u"*.json"_s}))
            QFile::remove(photos_.filePath(name));
    }

    void manyPhotosAreOneLine()
    {
        const OpenedDialog opened(setup());
        const QSize size(800, 500);
        opened.dialog->resize(size);
        opened.dialog->print();
        QTRY_VERIFY(isIdle(opened));
        QCOMPARE(opened.message(),
                 u"Printed 16 photos in the folder %1"_s.arg(opened.folder.filePath(u"out"_s)));
        QCOMPARE(printed(opened).size(), count);
        QCOMPARE(opened.find<QPushButton>(u"cancel"_s)->text(), u"Close"_s);
        auto *details = opened.find<QWidget>(u"messageDetailText"_s);
        QVERIFY(!details->isVisible());
        opened.click(u"messageDetails"_s);
        QTRY_VERIFY(details->isVisible() && isWhollySeen(opened.find<QWidget>(u"print"_s)));
        QCOMPARE(details->accessibleName().count(u'\n'), count - 1);
        QVERIFY(details->accessibleName().contains(u"photo11.pdf"_s));
        QVERIFY(details->height() < size.height() / 4);
        QCOMPARE(opened.dialog->size(), size);
        // The next message is not about these photos.
        opened.dialog->saveSettings();
        QVERIFY(!details->isVisible() && !opened.find<QWidget>(u"messageDetails"_s)->isVisible());
    }

    void progressCoversAllPhotos()
    {
        const OpenedDialog opened(setup());
        const auto *bar = opened.find<QProgressBar>(QString());
        const auto *progress = opened.find<QWidget>(u"progress"_s);
        QVERIFY(!progress->isVisible());
        opened.dialog->print();
        QVERIFY(progress->isVisible());
        QCOMPARE(opened.find<QPushButton>(u"cancel"_s)->text(), u"Stop"_s);
        QList<int> values;
        QStringList texts;
        while (!isIdle(opened)) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (bar->maximum() > 0 && progress->isVisible() &&
                (values.isEmpty() || values.last() != bar->value())) {
                values.append(bar->value());
                texts.append(opened.find<QWidget>(u"progressText"_s)->accessibleName());
            }
        }
        QVERIFY(std::ranges::is_sorted(values));
        QVERIFY2(values.size() > 5 && values.last() > bar->maximum() / 2,
                 qPrintable(QString::number(values.size())));
        QVERIFY2(texts.last().contains(u" of 16, less than a minute: "_s) &&
                     texts.last().contains(u"photo"_s),
                 qPrintable(texts.last()));
        QVERIFY(!progress->isVisible());
    }

    void longMessagesGrowNothing()
    {
        const OpenedDialog opened;
        const QSize size(800, 500);
        opened.dialog->resize(size);
        QStringList missing;
        for (int i = 0; i < 60; ++i)
            missing.append(photos_.filePath(u"missing%1.jpg"_s.arg(i)));
        opened.find<PhotoPane>(u"photos"_s)->addFiles(missing);
        QTRY_VERIFY(opened.message().contains(u"57 more"_s));
        opened.find<MessageBar>(u"message"_s)
            ->showWithAction(MessageBar::Kind::Warning, missing.join(u'\n'), QString(u'W').repeated(900), {});
        QTRY_VERIFY(isWhollySeen(opened.find<QWidget>(u"messageAction"_s)));
        QCOMPARE(opened.dialog->size(), size);
        for (const QString &name : {u"print"_s, u"cancel"_s, u"printer"_s})
            QVERIFY2(isWhollySeen(opened.find<QWidget>(name)), qPrintable(name));
    }

    void stopping_data()
    {
        addRows<QList<Qt::Key>, bool>({
            {"button, after this photo", {Qt::Key_Return}, true},
            {"button, at once", {Qt::Key_Tab, Qt::Key_Return}, true},
            {"button, and Escape", {Qt::Key_Escape}, false},
            {"Escape, and Return to the question", {Qt::Key_Escape, Qt::Key_Return}, true},
            {"Escape, and the last answer",
             {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return},
             false},
            {"Escape twice", {Qt::Key_Escape, Qt::Key_Escape}, false},
        });
    }

    // And what was not printed then is printed, and nothing else.
    void stopping()
    {
        const auto [keys, stops] = row<QList<Qt::Key>, bool>();
        const OpenedDialog opened(setup());
        opened.dialog->print();
        if (QByteArray(QTest::currentDataTag()).startsWith("button"))
            opened.click(u"cancel"_s);
        for (const Qt::Key key : keys)
            opened.press(key);
        QVERIFY(!opened.find<QWidget>(u"messageAction"_s) ||
                !opened.find<MessageBar>(u"message"_s)->isAsking());
        QTRY_VERIFY(isIdle(opened));
        QVERIFY(opened.dialog->isVisible());
        const auto there = static_cast<int>(printed(opened).size());
        if (stops) {
            QVERIFY(there < count);
            QCOMPARE(opened.message(), u"Printing was stopped: printed %1 of 16 photos."_s.arg(there));
            const QString details = opened.find<QWidget>(u"messageDetailText"_s)->accessibleName();
            QCOMPARE(details.count(u"was not printed."_s), count - there);
            QCOMPARE(opened.find<QPushButton>(u"messageAction"_s)->text(), u"Print the Rest"_s);
            opened.click(u"messageAction"_s);
            QTRY_VERIFY(isIdle(opened));
        }
        QStringList all;
        for (int i = 1; i <= count; ++i)
            all.append(u"photo%1.pdf"_s.arg(i, 2, 10, QLatin1Char('0')));
        QCOMPARE(printed(opened), all);
        QTest::keyClick(opened.dialog.get(), Qt::Key_Escape);
        QVERIFY(opened.dialog->isHidden());
    }

    void oneDocumentOfAll()
    {
        const OpenedDialog opened(setup());
        auto *name = opened.find<QLineEdit>(u"documentName"_s);
        QVERIFY(!name->isVisible());
        opened.chooseLast(u"documents"_s);
        QVERIFY(name->isVisible());
        const auto prints = [&opened] {
            opened.dialog->print();
            return QTest::qWaitFor([&opened] { return isIdle(opened); });
        };
        for (const auto &[bad, why] : {std::pair(u" "_s, u"no name"_s),
                                       {u"a/b"_s, u"slash"_s},
                                       {u".pdf"_s, u"no name"_s},
                                       {u".album"_s, u"dot"_s},
                                       {QString(300, u'x'), u"too long"_s}}) {
            name->setText(bad);
            QVERIFY(prints());
            QVERIFY2(opened.message().contains(why), qPrintable(opened.message()));
        }
        // Stopped, it leaves nothing; then all of it is the rest.
        name->setText(u"album.pdf"_s);
        opened.dialog->print();
        opened.click(u"cancel"_s);
        opened.press(Qt::Key_Return);
        QTRY_VERIFY(isIdle(opened));
        QCOMPARE(opened.message(), u"Printing was stopped: printed 0 of 16 photos."_s);
        QCOMPARE(printed(opened), QStringList());
        opened.click(u"messageAction"_s);
        QTRY_VERIFY(isIdle(opened));
        const QDir out(opened.folder.filePath(u"out"_s));
        QCOMPARE(opened.message(), u"Printed 16 photos in one PDF: "_s + out.filePath(u"album.pdf"_s));
        QCOMPARE(out.entryList(QDir::Files), (QStringList{u"album.pdf"_s, u"album.ticket.json"_s}));
        QFile pdf(out.filePath(u"album.pdf"_s));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QCOMPARE(pdf.readAll().count("/Type /Page "), count);
        QFile ticket(out.filePath(u"album.ticket.json"_s));
        QVERIFY(ticket.open(QIODevice::ReadOnly));
        QCOMPARE(ticket.readAll().count("/photo"), count + 1); // the document, and each sheet
        // What is there is asked about.
        for (const auto &[answer, there] :
             {std::pair(u"messageAction"_s, QStringList{u"album-2.pdf"_s, u"album.pdf"_s}),
              {u"messageAction2"_s, QStringList{u"album-2.pdf"_s, u"album.pdf"_s}}}) {
            QVERIFY(prints());
            QVERIFY2(opened.message().contains(u"already there"_s), qPrintable(opened.message()));
            const QDateTime before = QFileInfo(pdf).lastModified();
            opened.click(answer);
            QTRY_VERIFY(isIdle(opened));
            QCOMPARE(printed(opened), there);
            QCOMPARE(QFileInfo(pdf).lastModified() == before, answer == u"messageAction"_s);
        }
    }

    // It says what becomes of the photos, and goes when that is confirmed, or when it is closed once more.
    void closing()
    {
        for (const bool byButton : {false, true}) {
            const OpenedDialog opened(setup());
            opened.dialog->print();
            opened.dialog->close();
            QVERIFY(opened.dialog->isVisible());
            QVERIFY2(opened.message().contains(u"The rest"_s), qPrintable(opened.message()));
            if (byButton)
                opened.click(u"messageAction"_s);
            else
                opened.dialog->close();
            QVERIFY(opened.dialog->isHidden());
            QTRY_VERIFY(isIdle(opened));
            QVERIFY(printed(opened).size() < count);
        }
    }

private:
    static constexpr int count = 16;

    PrintDialogSetup setup() const
    {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.photos.clear();
        for (const QString &name : QDir(photos_.path()).entryList(QDir::Files))
            setup.photos.append(*Photo::open(photos_.filePath(name)));
        return setup;
    }

    static QStringList printed(const OpenedDialog &opened)
    {
        return QDir(opened.folder.filePath(u"out"_s)).entryList({u"*.pdf"_s});
    }
    static bool isIdle(const OpenedDialog &opened)
    {
        return opened.find<QPushButton>(u"print"_s)->isEnabled();
    }

    QTemporaryDir photos_;
};

CORVEL_WIDGETS_TEST(PrintingTest)
#include "PrintingTest.moc"
