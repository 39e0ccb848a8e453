// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PagePhoto.h"
#include "PageView.h"

#include <QtCore/QList>

class QPainter;

namespace printdialog {

/// Photos that were scaled down for the prints of one painting: one that lies on a sheet several times in the
/// same size is scaled once.
class ScaledPhotos
{
public:
    /// The part (in pixels) of the picture, scaled to the size.
    QImage scaled(const QImage &whole, const QRect &part, const QSize &size);

private:
    struct Scaled
    {
        qint64 of;
        QRect part;
        QImage image;
    };

    QList<Scaled> made_;
};

/// What is seen of a photo in its place, in a view's device pixels: scaled once until something else is seen.
class PrintPicture
{
public:
    /// @param extent what may be seen of the photo, in points on the page
    void update(const PageView &view, const PhotoPlacement &placement, const QRectF &extent,
                const PagePhoto &photo, ScaledPhotos &scaled);

    /// RGB32; null when nothing is seen.
    const QImage &image() const { return image_; }
    /// Of its top left pixel in the picture of the page.
    QPoint corner() const { return pixels_.topLeft(); }

private:
    void drawWhole(QPainter &painter, const QSize &wanted, const QRectF &seen, ScaledPhotos &scaled) const;

    QImage image_;
    QRect pixels_;        ///< that it has in the picture of the page
    QTransform toPixels_; ///< of the photo's unit square
    PagePhoto photo_;
};

/// Maps the unit square of the upright photo in its place to the view's device pixels.
QTransform photoToPixels(const PageView &view, const PhotoPlacement &placement);
/// The size in device pixels that the entire photo has in the view, upright.
QSize photoPixels(const PageView &view, const PhotoPlacement &placement);
/// What of the photo lies in this area of the page, in points, and in the view: in the photo's unit square.
QRectF seenPart(const PageView &view, const PhotoPlacement &placement, const QRectF &extent);

} // namespace printdialog
