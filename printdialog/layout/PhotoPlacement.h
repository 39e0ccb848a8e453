// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtCore/QSizeF>
#include <QtGui/QTransform>

namespace printdialog {

/// A page and its printable part. In points (1/72 inch); the origin is the page's top left corner and y runs
/// down.
struct PageGeometry
{
    QSizeF size;
    QRectF imageable; ///< The printable area; larger than the page for borderless printing.

    /// The visible part of a print: the imageable area within the sheet.
    QRectF printed() const { return imageable & QRectF(QPointF(0, 0), size); }

    bool operator==(const PageGeometry &) const = default;
};

/// How a photo is scaled on its page. It is never distorted.
enum class Scaling {
    Fit,        ///< As large as possible without cutting anything off.
    Fill,       ///< As small as possible while it covers the area; the rest is cut off.
    ActualSize, ///< The size given by its resolution; parts that do not fit are cut off.
};

/// The requested placement of a photo on its page. A value; the default is used when nothing is requested.
struct PlacementChoice
{
    Scaling scaling = Scaling::Fit;
    /// Quarter turns clockwise, 0 to 3, in addition to the turn that the page's shape causes.
    int turns = 0;
    /// Which part of a cropped photo is kept, along the sides of the upright photo: from 0 (left, top)
    /// through 0.5 (centre) to 1 (right, bottom). A photo smaller than the area is moved within it. Fit
    /// always centres.
    QPointF crop{0.5, 0.5};

    bool operator==(const PlacementChoice &) const = default;
};

/// Where a photo is placed on a page, for both the preview and the printed page.
struct PhotoPlacement
{
    QRectF target; ///< The complete photo on the page after the turn, in points.
    QRectF area;   ///< The area that the photo was placed in, in points. Only the imageable area is printed.
    int quarterTurns = 0; ///< Clockwise, of the upright photo, 0 to 3.
    int pageTurns = 0;    ///< How many of them are due to the page's shape.

    /// Computes the placement. `seenSize` is the size of the upright photo in pixels; neither it nor the
    /// imageable area is empty. The photo is placed in the imageable area or, unless it is to be filled, in
    /// the part of it that is on the sheet.
    static PhotoPlacement place(const QSize &seenSize, double pixelsPerInch, const PageGeometry &page,
                                const PlacementChoice &choice);

    /// Maps the unit square of a picture to the page in points: of the photo's stored pixels with their
    /// orientation or, without one, of a picture that is already upright.
    QTransform toPage(ExifOrientation orientation = {}) const;

    /// By how much the area is wider and higher than the photo, in points; negative when the photo is larger.
    QPointF slack() const;
    /// The choice that moves the photo by the distance on the page, in points, as far as possible. The same
    /// choice when the photo cannot move that way.
    PlacementChoice moved(const PlacementChoice &choice, const QPointF &distance) const;
    /// The fraction of the photo, 0 to 1, that is not printed on the page.
    double cutOff(const PageGeometry &page) const;

    bool operator==(const PhotoPlacement &) const = default;
};

} // namespace printdialog
