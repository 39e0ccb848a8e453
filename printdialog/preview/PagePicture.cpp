// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagePicture.h"

#include "PagePainter.h"

#include <QtCore/QHash>
#include <QtGui/QColorSpace>
#include <QtGui/QPainter>

namespace printdialog {

namespace {

/// Decodes the photo as large as it is seen in the view.
/// @param size of the entire photo in the view, in pixels
/// @param seen of its unit square
PagePhoto pixelsOf(const Photo &photo, const QSize &size, const QRectF &seen, int least)
{
    const int detail = PagePhoto::detailFor(size, least);
    PagePhoto pixels;
    pixels.whole = photo.pixels({detail, detail});
    if (PagePhoto::needsPart(size, photo.storedSize()) && !pixels.whole.isNull()) {
        const PhotoPart part = photo.part(seen, size);
        pixels.part = part.image;
        pixels.partCovers = part.area;
    }
    return pixels;
}

/// False when one of the photos cannot be decoded. A photo that lies on the sheet several times is decoded
/// once, for its largest print.
bool decodePhotos(const PrintSheet &sheet, const PageView &view, PagePainter &painter)
{
    struct Wanted
    {
        QSize size;
        QRectF seen;
        PagePhoto pixels = {};
    };
    QHash<PictureKey, Wanted> photos;
    for (const SheetPhoto &laid : sheet.photos) {
        Wanted &wanted = photos[laid.photo.key()];
        wanted.size = wanted.size.expandedTo(photoPixels(view, laid.placement));
        wanted.seen |= seenPart(view, laid.placement,
                                view.isShared ? laid.placement.seen(view.page) : laid.placement.target);
    }
    QHash<QByteArray, std::shared_ptr<const ColorLookup>> lookups; // by the photos' profiles
    for (qsizetype i = 0; i < sheet.photos.size(); ++i) {
        const Photo &photo = sheet.photos.at(i).photo;
        Wanted &wanted = photos[photo.key()];
        if (wanted.pixels.whole.isNull())
            wanted.pixels = pixelsOf(photo, wanted.size, wanted.seen,
                                     view.isShared ? PagePhoto::leastDetail : PagePhoto::usualDetail);
        if (wanted.pixels.whole.isNull())
            return false;
        const QByteArray profile = photo.pixelProfile();
        if (!lookups.contains(profile))
            lookups.insert(profile, ColorLookup::make({profile, {}, {}}));
        wanted.pixels.lookup = lookups.value(profile);
        painter.setPhoto(i, wanted.pixels);
    }
    return true;
}

} // namespace

QImage pagePicture(const PagePictureRequest &request, int longestSide)
{
    const PrintSheet &sheet = request.sheet;
    if (request.page.printed().isEmpty() || sheet.photos.isEmpty())
        return {};
    PageView view;
    view.page = request.page;
    view.isShared = sheet.photos.size() > 1;
    view.isReadTurned = sheet.isReadTurned();
    if (!view.isShared)
        view.placement = sheet.photos.constFirst().placement;
    view.dotsPerInch = request.dotsPerInch;
    const QSize size = view.sizeWithin(longestSide);
    view.room = size;

    PagePainter painter;
    painter.setSheet(sheet, view.isShared ? -1 : 0);
    if (!decodePhotos(sheet, view, painter))
        return {};
    painter.setAdjustment(request.adjustment);

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
