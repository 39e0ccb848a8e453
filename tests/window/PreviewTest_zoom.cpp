// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"
#include "PreviewTest.h"
#include "SamplePhotos.h"

#include <QtGui/QWheelEvent>

#include <cmath>
#include <memory>

using namespace testing_support;

// Zooming, and the detail that it shows.

void PreviewTest::zooming()
{
    const OpenedPreview opened(setup());
    opened.dialog->showPage(1);
    opened.slider(2)->setValue(0); // nothing changes a pixel
    PreviewWidget &preview = *opened.preview;
    const QString fit = opened.button(u"zoom"_s)->text();
    opened.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(preview.zoom(), 1.0);
    QCOMPARE(opened.button(u"zoom"_s)->text(), u"100 %"_s);
    // The photo has 300 pixels to the inch, as the print has: they are on the screen as they are.
    const auto isCopied = [&](int factor) {
        opened.settle();
        const QImage shown = preview.grab().toImage();
        const QRectF part = PagePainter::seenPart(preview.view());
        const QImage all = tones();
        const QPoint corner(qRound(part.left() * all.width() * factor),
                            qRound(part.top() * all.height() * factor));
        const QPoint place = PagePainter::seenPhoto(preview.view()).topLeft().toPoint();
        for (const QPoint at : {QPoint(40, 40), QPoint(100, 73), QPoint(150, 151)}) {
            const QRgb one = shown.pixel(place + at);
            const QRgb other = all.pixel((corner + at) / factor);
            const int apart =
                std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other))});
            if (apart > (factor == 1 ? 0 : 3))
                return false;
        }
        return true;
    };
    QVERIFY(isCopied(1));
    const QRectF middle = PagePainter::seenPart(preview.view());
    const QPoint from = preview.rect().center();
    QTest::mousePress(&preview, Qt::LeftButton, {}, from);
    QTest::mouseMove(&preview, from + QPoint(-60, -30));
    QTest::mouseRelease(&preview, Qt::LeftButton, {}, from + QPoint(-60, -30));
    const QRectF dragged = PagePainter::seenPart(preview.view());
    QVERIFY(std::abs((dragged.left() - middle.left()) * 1800 - 60) < 1);
    QVERIFY(std::abs((dragged.top() - middle.top()) * 1200 - 30) < 1);
    QVERIFY(isCopied(1));
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(&preview, Qt::Key_Left); // no farther than to the paper's edge
    QVERIFY(std::abs(PagePainter::seenPart(preview.view()).left()) < 0.01);
    QCOMPARE(opened.dialog->findChild<PhotoPane *>()->photos().constFirst().placement, PlacementChoice());

    opened.press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(preview.zoom(), 2.0);
    QVERIFY(!opened.button(u"zoomIn"_s)->isEnabled());
    opened.click(u"zoomOut"_s);
    QCOMPARE(preview.zoom(), 1.0);
    // What is under the pointer stays there.
    const QPointF pointer(preview.width() / 3.0, preview.height() / 3.0);
    const QPointF onPage = preview.pageToWidget().inverted().map(pointer);
    QWheelEvent wheel(pointer, preview.mapToGlobal(pointer), {}, QPoint(0, 120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&preview, &wheel);
    QVERIFY(*preview.zoom() > 1.1 && *preview.zoom() < 1.3);
    const QPointF moved = preview.pageToWidget().map(onPage) - pointer;
    QVERIFY2(moved.manhattanLength() < 2, qPrintable(QString::number(moved.manhattanLength())));
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, pointer,
                              pointer, preview.mapToGlobal(pointer), 0.25, {});
    const double before = *preview.zoom();
    QCoreApplication::sendEvent(&preview, &pinch);
    QCOMPARE(*preview.zoom(), before * 1.25);
    preview.setFocus();
    QTest::keyClick(&preview, Qt::Key_0);
    QVERIFY(!preview.zoom());
    QCOMPARE(opened.button(u"zoom"_s)->text(), fit);
}

void PreviewTest::sharpnessInDetail()
{
    const OpenedPreview opened(setup());
    const auto note = [&opened] {
        return opened.find<QLabel>(u"previewNote"_s)->text();
    };
    const QString hint = u"sharpness shows at 100 %"_s;
    QTRY_VERIFY(note().contains(hint)); // the defaults do sharpen
    opened.press(Qt::Key_1, Qt::ControlModifier);
    opened.settle();
    QTRY_VERIFY(!note().contains(hint));
    opened.dialog->showPage(1);
    const auto contrastOf = [&opened](int radius, double amount) {
        opened.slider(1)->setValue(radius);
        opened.type(82, QLocale().toString(amount, 'f', 2));
        const QImage shown = opened.photo();
        double sum = 0;
        for (int y = shown.height() * 3 / 4; y < shown.height() - 1; ++y)
            sum += std::abs(qBlue(shown.pixel(9, y)) - qBlue(shown.pixel(9, y + 1)));
        return sum;
    };
    const double none = contrastOf(0, 1);
    QCOMPARE(contrastOf(1, 0), none);
    QVERIFY(contrastOf(1, 0.5) > none);
    QVERIFY(contrastOf(1, 1) > contrastOf(1, 0.5));
    QVERIFY(contrastOf(3, 1) > none);
}

// Lines as thin as a pixel, in a photo that is too large to be kept as a whole.
void PreviewTest::detailOfLargePhotos()
{
    if (mode_ == PanelMode::Settings)
        return; // the same
    QImage lines(6000, 4000, QImage::Format_Grayscale8);
    for (int y = 0; y < lines.height(); ++y) {
        for (int x = 0; x < lines.width(); ++x)
            lines.scanLine(y)[x] = x % 2 == 0 ? 0 : 255;
    }
    const QString path = photos_.filePath(u"lines.png"_s);
    samples::store(path, samples::encoded(lines, "png"));
    PreviewWidget preview;
    preview.resize(401, 301); // whose middle lies between two pixels
    const PageGeometry page{QSizeF(288, 192), QRectF(0, 0, 288, 192)};
    preview.setPage(page);
    preview.setDotsPerInch(1500); // a pixel for each dot
    preview.setSheet(PrintSheet::of(*Photo::open(path), page, {}), 0);
    preview.show();
    const auto contrast = [&preview] {
        const QImage shown = preview.grab().toImage();
        return std::abs(qGray(shown.pixel(200, 150)) - qGray(shown.pixel(201, 150)));
    };
    QTRY_VERIFY(preview.isComplete());
    QVERIFY(contrast() < 60);
    preview.zoomTo(PreviewWidget::dotForDot);
    QTRY_COMPARE(contrast(), 255);
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&preview, Qt::Key_Right);
    QTRY_COMPARE(contrast(), 255);
    QVERIFY(PagePainter::seenPart(preview.view()).right() > 0.999);
    preview.zoomTo(std::nullopt);
    QTRY_VERIFY(preview.isComplete() && contrast() < 60);
    // A part that is wanted again, after it was given up and before it is over.
    for (const auto zoom : {std::optional(PreviewWidget::dotForDot), std::optional<double>(),
                            std::optional(PreviewWidget::dotForDot)}) {
        preview.zoomTo(zoom);
        (void)preview.grab();
    }
    QTRY_COMPARE(contrast(), 255);
}

// The first finger of a pinch, or the button that is held, is no wish to move the photo on its page.
void PreviewTest::zoomingKeepsTheCrop()
{
    PrintDialogSetup square = setup();
    samples::store(photos_.filePath(u"square.png"_s),
                   samples::encoded(tones().copy(0, 0, 1000, 1000), "png"));
    square.photos = {*Photo::open(photos_.filePath(u"square.png"_s))};
    square.style = ArrangementStyle{{Scaling::Fill, 0, {0.4, 0.5}}};
    const OpenedPreview opened(square);
    PreviewWidget &preview = *opened.preview;
    const auto isKept = [&] {
        const auto *pane = opened.dialog->findChild<PhotoPane *>();
        return pane->photos().constFirst().placement == square.style->placement;
    };
    const QPoint middle = preview.rect().center();
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    constexpr QPoint apart(20, 20);
    constexpr QPoint step(6, 6);
    QTest::touchEvent(&preview, screen.get()).press(0, middle - apart, &preview);
    QTest::touchEvent(&preview, screen.get()).stationary(0).press(1, middle + apart, &preview);
    for (int i = 1; i <= 10; ++i) {
        QTest::touchEvent(&preview, screen.get())
            .move(0, middle - apart - i * step, &preview)
            .move(1, middle + apart + i * step, &preview);
        QCoreApplication::processEvents();
    }
    QTest::touchEvent(&preview, screen.get())
        .release(0, middle - apart - 10 * step, &preview)
        .release(1, middle + apart + 10 * step, &preview);
    QVERIFY(preview.zoom() && isKept());
    QTest::keyClick(&preview, Qt::Key_Home);
    QVERIFY(isKept());

    preview.zoomTo(std::nullopt);
    QTest::mousePress(&preview, Qt::LeftButton, {}, middle);
    QWheelEvent wheel(middle, preview.mapToGlobal(middle), {}, QPoint(0, 480), Qt::LeftButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&preview, &wheel);
    QTest::mouseMove(&preview, middle + QPoint(-30, 0));
    QTest::mouseRelease(&preview, Qt::LeftButton, {}, middle + QPoint(-30, 0));
    QVERIFY(preview.zoom() && isKept());
}
