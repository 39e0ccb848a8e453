// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"
#include "PreviewWidget.h"

#include <QtWidgets/QToolButton>

/// A photo with every tone and some colors, with a pixel for each dot of a print of 4 x 6 inches.
QImage tones();

/// A dialog whose preview is complete.
struct OpenedPreview : testing_support::OpenedDialog
{
    explicit OpenedPreview(const printdialog::PrintDialogSetup &setup)
        : OpenedDialog(setup)
        , preview(find<printdialog::PreviewWidget>(QStringLiteral("preview")))
    {
        settle();
    }

    void settle() const
    {
        QVERIFY(QTest::qWaitFor([this] {
            QCoreApplication::processEvents(); // what was chosen arrives with the events
            return preview->isComplete();
        }));
    }

    /// The photo as it is shown, without its edges.
    QImage photo() const
    {
        settle();
        const QRect seen =
            printdialog::PagePainter::seenPhoto(preview->view()).toAlignedRect().adjusted(3, 3, -3, -3);
        return preview->grab(seen).toImage().convertToFormat(QImage::Format_RGB32);
    }

    QToolButton *button(const QString &name) const { return find<QToolButton>(name); }

    printdialog::PreviewWidget *preview;
};

/// The preview follows the printer's options, with real keys and mouse.
class PreviewTest : public testing_support::WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }
    void initTestCase();
    void followsEveryChange();
    void refusalLeavesIt();
    void latestOfManyValues();
    void finishAndItsRemark();
    void comparing();
    void dividing();
    void clippedTones();
    void zooming();
    void sharpnessInDetail();
    void detailOfLargePhotos();
    void colorsOfPhotoAndScreen();
    void softProof();
    void zoomingKeepsTheCrop();

private:
    printdialog::PrintDialogSetup setup() const;
    QTemporaryDir photos_;
};
