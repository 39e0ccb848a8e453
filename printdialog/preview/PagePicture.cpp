// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagePicture.h"

#include "PagePainter.h"

#include <QtGui/QColorSpace>
#include <QtGui/QPainter>

namespace printdialog {

QImage pagePicture(const PagePictureRequest &request, int longestSide)
{
    const Photo &photo = request.photo;
    if (request.page.printed().isEmpty() || photo.storedSize().isEmpty())
        return {};
    PageView view;
    view.page = request.page;
    view.placement = PhotoPlacement::place(photo.orientedSize(), photo.printedResolution(), request.page,
                                           request.placement);
    view.dotsPerInch = request.dotsPerInch;
    const QSize size = view.sizeWithin(longestSide);
    view.room = size;

    const int detail = PagePhoto::detailFor(PagePainter::photoPixels(view));
    PagePhoto pixels;
    pixels.whole = photo.pixels({detail, detail});
    if (pixels.whole.isNull())
        return {};
    if (const QSize whole = PagePainter::photoPixels(view); PagePhoto::needsPart(whole, photo.storedSize())) {
        const PhotoPart part = photo.part(PagePainter::seenPart(view), whole);
        pixels.part = part.image;
        pixels.partCovers = part.area;
    }
    PagePainter painter;
    painter.setPhoto(pixels);
    painter.adjuster().setAdjustment(request.adjustment);
    painter.adjuster().setLookup(ColorLookup::make({photo.pixelProfile(), {}, {}}));

    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull())
        return {};
    picture.fill(Qt::white);
    QPainter canvas(&picture);
    painter.paint(canvas, view, {});
    canvas.end();
    constexpr double inchesPerMeter = 1 / 0.0254;
    const int dotsPerMeter = qRound(view.pixelsPerInch() * inchesPerMeter);
    picture.setDotsPerMeterX(dotsPerMeter);
    picture.setDotsPerMeterY(dotsPerMeter);
    picture.setColorSpace(QColorSpace::SRgb);
    return picture;
}

} // namespace printdialog
