// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintPicture.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace {

constexpr QRectF unitSquare(0, 0, 1, 1);

QRectF roomPixels(const PageView &view)
{
    return {QPointF(0, 0), view.room * view.ratio};
}

} // namespace

QTransform photoToPixels(const PageView &view, const PhotoPlacement &placement)
{
    return placement.toPage() * view.toPixels();
}

QSize photoPixels(const PageView &view, const PhotoPlacement &placement)
{
    const QTransform transform = photoToPixels(view, placement);
    const QSizeF size(std::hypot(transform.m11(), transform.m12()),
                      std::hypot(transform.m21(), transform.m22()));
    return size.toSize().expandedTo(QSize(1, 1));
}

QRectF seenPart(const PageView &view, const PhotoPlacement &placement, const QRectF &extent)
{
    bool isInvertible = false;
    const QTransform toPhoto = photoToPixels(view, placement).inverted(&isInvertible);
    const QRectF seen = view.toPixels().mapRect(extent) & roomPixels(view);
    return isInvertible && !seen.isEmpty() ? toPhoto.mapRect(seen) & unitSquare : QRectF();
}

QImage ScaledPhotos::scaled(const QImage &whole, const QRect &part, const QSize &size)
{
    const auto known = std::ranges::find_if(made_, [&](const Scaled &made) {
        return made.of == whole.cacheKey() && made.part == part && made.image.size() == size;
    });
    if (known != made_.end())
        return known->image;
    const QImage image = (part == whole.rect() ? whole : whole.copy(part))
                             .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    made_ += Scaled{whole.cacheKey(), part, image};
    return image;
}

/// Draws what is seen of the whole photo into its unit square. QPainter scales well down to one half; below
/// that it skips pixels, and edges shimmer.
/// @param wanted the size of the whole photo in pixels
void PrintPicture::drawWhole(QPainter &painter, const QSize &wanted, const QRectF &seen,
                             ScaledPhotos &scaled) const
{
    constexpr double wellScaled = 0.6;
    const QImage &whole = photo_.whole;
    if (wanted.width() > whole.width() * wellScaled) {
        painter.drawImage(unitSquare, whole);
        return;
    }
    const QTransform toPixels = QTransform::fromScale(whole.width(), whole.height());
    constexpr int border = 4;           // that scaling mixes in
    constexpr double mostlySeen = 0.25; // then all of it, so that it looks the same wherever it ends
    QRect part = whole.rect();
    if (seen.width() * seen.height() < mostlySeen)
        part &= toPixels.mapRect(seen).toAlignedRect().adjusted(-border, -border, border, border);
    const QSize size(std::max(1, qRound(double(part.width()) * wanted.width() / whole.width())),
                     std::max(1, qRound(double(part.height()) * wanted.height() / whole.height())));
    painter.drawImage(toPixels.inverted().mapRect(QRectF(part)), scaled.scaled(whole, part, size));
}

void PrintPicture::update(const PageView &view, const PhotoPlacement &placement, const QRectF &extent,
                          const PagePhoto &photo, ScaledPhotos &scaled)
{
    const QTransform toPixels = photoToPixels(view, placement);
    const QRectF seen = view.toPixels().mapRect(extent) & roomPixels(view);
    const QRect pixels = seen.isEmpty() ? QRect() : seen.toAlignedRect();
    if (!image_.isNull() && pixels == pixels_ && toPixels == toPixels_ && photo_.isSameAs(photo))
        return;
    pixels_ = pixels;
    toPixels_ = toPixels;
    photo_ = photo;
    if (image_.size() != pixels.size())
        image_ = pixels.isEmpty() ? QImage() : QImage(pixels.size(), QImage::Format_RGB32);
    if (image_.isNull() || photo.whole.isNull()) {
        image_ = {};
        return;
    }
    image_.fill(Qt::white); // which is what a transparent photo gets in print
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(toPixels * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
    drawWhole(painter, photoPixels(view, placement), seenPart(view, placement, extent), scaled);
    if (!photo.part.isNull())
        painter.drawImage(photo.partCovers, photo.part);
}

} // namespace printdialog
