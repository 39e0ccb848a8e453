// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintDialogTest.h"
#include "TestMain.h"

#include "PhotoThreads.h"
#include "PrintWorker.h"

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtCore/QSemaphore>
#include <QtCore/QThreadPool>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractItemView>

using namespace testing_support;

// Sliders, typed numbers, radio buttons on all three pages; the same ticket in both modes.
void PrintDialogTest::printsWhatTheUserChose()
{
    const OpenedDialog opened(mode_);
    opened.type(81, u"-12"_s);
    opened.press(Qt::Key_Return); // belongs to the field
    QCOMPARE(opened.message(), QString());
    QTest::keyClick(opened.control(7), Qt::Key_Right);
    opened.dialog->showPage(1);
    opened.type(82, u"1.5"_s);
    opened.dialog->showPage(2);
    opened.click(u"fine"_s);
    opened.click(u"matte"_s);
    auto *slider = opened.slider(3);
    for (int i = 0; i < 7; ++i)
        QTest::keyClick(slider, Qt::Key_Left);
    QVERIFY(opened.prints());
    QCOMPARE(opened.printed(u"Red Gamma SharpnessIntensity Quality Overcoat MatteValue Blue"_s),
             u"-12 1 1.50 Fine Matte -7 0"_s);
    QCOMPARE(opened.options().size(), 17); // fifteen of the panels, and the page size
    QTRY_VERIFY(opened.message().contains(u"sample.pdf"_s));
}

// It is printed once the user has seen it and wants it. When Print comes before the check is done, the worker
// finds the damage, and the window asks then.
void PrintDialogTest::damagedPhoto()
{
    QFile sample(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    QFile damaged(config_->filePath(u"sample.jpg"_s));
    QVERIFY(sample.open(QFile::ReadOnly) && damaged.open(QFile::WriteOnly));
    const QByteArray content = sample.readAll();
    damaged.write(QByteArray(content).replace(content.size() / 2, 4096, QByteArray(4096, '\0')));
    damaged.close();
    PrintDialogSetup setup = setupFor(mode_);
    setup.photos.append(*Photo::open(damaged.fileName()));

    PrintWorker worker;
    QSignalSpy finished(&worker, &PrintWorker::finished);
    const QString folder = config_->filePath(u"unseen"_s);
    PrintJob job;
    job.folder.path = folder;
    worker.print({{{setup.photos.at(0)}, {*Photo::open(damaged.fileName())}}}, job);
    QVERIFY(finished.wait());
    QVERIFY(finished.at(0).at(0).value<PrintOutcome>().hasDamaged);
    QVERIFY(!QFile::exists(folder));

    const OpenedDialog opened(setup);
    QTRY_VERIFY(setup.photos.at(1).isChecked());
    opened.click(u"print"_s);
    QVERIFY2(opened.message().startsWith(u"sample.jpg is damaged"_s), qPrintable(opened.message()));
    QVERIFY(opened.find<QLabel>(u"photoLabel"_s)->text().startsWith(u"sample.jpg (2 of 2)\nDamaged"_s));
    opened.click(u"print"_s);
    QVERIFY(!QFile::exists(opened.folder.filePath(u"out"_s)));
    opened.click(u"messageAction"_s);
    QTRY_VERIFY(QFile::exists(opened.folder.filePath(u"out/sample-2.pdf"_s)));
    QTRY_VERIFY(opened.message().startsWith(u"Printed 2 photos"_s));
}

void PrintDialogTest::stopsWhilePhotosAreChecked()
{
    Arrangement many;
    for (int i = 0; i < 500; ++i)
        many.photos.append({*Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO))});
    PrintJob job;
    job.folder.path = config_->filePath(u"unseen"_s);
    job.page = {QSizeF(300, 300), QRectF(0, 0, 300, 300)};
    PrintWorker worker;
    QSignalSpy finished(&worker, &PrintWorker::finished);
    QSignalSpy progress(&worker, &PrintWorker::progress);
    worker.print(many, job);
    QVERIFY(progress.wait());
    worker.cancel();
    QVERIFY(finished.wait());
    QCOMPARE(progress.at(0).at(0).toString(), u"1 of 500: Checking sample.jpg"_s);
    QVERIFY(finished.at(0).at(0).value<PrintOutcome>().wasStopped);
    QVERIFY(!many.photos.constLast().photo.isChecked());
    QVERIFY(!QFile::exists(job.folder.path));
}

void PrintDialogTest::changedPhotoIsLeftOut()
{
    const QString path = config_->filePath(u"other.jpg"_s);
    QVERIFY(QFile::copy(QStringLiteral(CORVEL_SAMPLE_PHOTO), path));
    PrintDialogSetup setup = setupFor(mode_);
    setup.photos.prepend(*Photo::open(path));
    QVERIFY(QFile::resize(path, QFileInfo(path).size() + 1));
    const OpenedDialog opened(setup);
    QVERIFY(opened.prints());
    QTRY_VERIFY2(opened.message().startsWith(u"Printed 1 of 2 photos."_s), qPrintable(opened.message()));
    QVERIFY2(opened.message().contains(u"other.jpg\" has changed since it was opened. Add it again."_s),
             qPrintable(opened.message()));
    QVERIFY(!QFile::exists(opened.folder.filePath(u"out/other.pdf"_s)));
}

void PrintDialogTest::printsAllPhotosOrNone()
{
    QSemaphore opening;
    const int threads = photoThreads().maxThreadCount();
    const auto release = qScopeGuard([&] {
        opening.release(threads);
        photoThreads().waitForDone();
    });
    for (int i = 0; i < threads; ++i)
        startPhotoTask([&opening] { opening.acquire(); }, ShownPhoto);
    PrintDialogSetup setup = setupFor(mode_);
    setup.furtherPaths = {QStringLiteral(CORVEL_SAMPLE_PHOTO), config_->filePath(u"none.jpg"_s)};
    const OpenedDialog opened(setup);
    auto *print = opened.find<QPushButton>(u"print"_s);
    QVERIFY(!print->isEnabled() && print->toolTip().contains(u"opened"_s));
    opened.press(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(!opened.isSeen(u"progress"_s));
    opening.release(threads);
    QTRY_VERIFY(print->isEnabled());
    QVERIFY2(opened.message().contains(u"none.jpg"_s), qPrintable(opened.message()));
    QVERIFY(opened.prints());
    QTRY_VERIFY2(opened.message().startsWith(u"Printed 2 photos"_s), qPrintable(opened.message()));
}

void PrintDialogTest::printsByKeyFromAnywhere()
{
    for (const QString &name : {u"printer"_s, u"pageSize"_s, u"copies"_s, u"folder"_s, u"redSlider"_s}) {
        for (const Qt::Key key : {Qt::Key_P, Qt::Key_Enter}) {
            const OpenedDialog opened;
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

void PrintDialogTest::openingOptionsAreShown()
{
    PrintDialogSetup setup = setupFor(mode_);
    setup.options = {{u"Red"_s, u"+3"_s}, {u"Nope"_s, u"1"_s}};
    const OpenedDialog opened(setup);
    QCOMPARE(opened.fieldText(81), u"3"_s);
    QCOMPARE(opened.slider(1)->value(), 3);
    QVERIFY(opened.message().contains(u"Nope"_s));
}

void PrintDialogTest::photosThatCannotBeOpenedAreNamed()
{
    PrintDialogSetup setup = setupFor(mode_);
    setup.photoFailures = {u"\"a.jpg\" is empty."_s, u"\"b.jpg\" is damaged."_s};
    setup.copies = 4;
    const OpenedDialog opened(setup);
    QVERIFY2(opened.message().contains(u"\"a.jpg\" is empty.\n\"b.jpg\" is damaged."_s),
             qPrintable(opened.message()));
    QCOMPARE(opened.find<QSpinBox>(u"copies"_s)->value(), 4);
    auto *printer = opened.find<QComboBox>(u"printer"_s);
    printer->showPopup();
    QTest::keyClick(printer->view(), Qt::Key_Return); // the user goes on with it
    QCOMPARE(opened.message(), QString());
}

// As Wayland delivers it: the list closes when it is asked whether it wants the key, which then comes.
void PrintDialogTest::escapeClosesOneThing()
{
    const OpenedDialog opened;
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

CORVEL_WIDGETS_TEST(PrintDialogTest)
