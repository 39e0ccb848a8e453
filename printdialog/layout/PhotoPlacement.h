// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"
#include "PlacementChoice.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtCore/QSizeF>
#include <QtGui/QTransform>

namespace printdialog {

/// Differences below it, in points, are rounding errors of lengths in millimeters and inches.
inline constexpr double layoutTolerance = 0.02;

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

/// The place on a page that a photo is laid into: the whole page, or one place of several.
struct PhotoFrame
{
    enum class Turn {
        ToSuit, ///< A quarter turn when the photo fits the frame better with it.
        Never,
        Always,
    };

    QRectF area; ///< What of it can be seen, in points.
    /// What a photo covers that fills the frame: the area and, for borderless printing, what is beyond the
    /// sheet's edges. That much is printed.
    QRectF bleed;
    Turn turn = Turn::ToSuit;

    /// The whole page.
    static PhotoFrame of(const PageGeometry &page) { return {page.printed(), page.imageable}; }

    bool operator==(const PhotoFrame &) const = default;
};

/// Where a photo is placed on a page, for both the preview and the printed page.
struct PhotoPlacement
{
    QRectF target; ///< The complete photo on the page after the turn, in points.
    QRectF area;   ///< The area that the photo was placed in, in points.
    QRectF clip;   ///< What is printed of it, in points: nothing outside.
    /// The entire print with its border, in points: what is cut out of the sheet.
    QRectF outline;
    PhotoBorder border;   ///< Painted over the outline, below the photo.
    int quarterTurns = 0; ///< Clockwise, of the upright photo, 0 to 3.
    int pageTurns = 0;    ///< How many of them are due to the page's shape.

    /// Computes the placement. `seenSize` is the size of the upright photo in pixels; neither it nor the
    /// frame's areas are empty. The photo is placed in the middle of the frame when it has a size of its own,
    /// which may be larger than the frame (see fits).
    static PhotoPlacement place(const QSizeF &seenSize, double pixelsPerInch, const PhotoFrame &frame,
                                const PlacementChoice &choice);
    /// On the whole page.
    static PhotoPlacement place(const QSizeF &seenSize, double pixelsPerInch, const PageGeometry &page,
                                const PlacementChoice &choice)
    {
        return place(seenSize, pixelsPerInch, PhotoFrame::of(page), choice);
    }
    /// Whether a print of the size has room in the area, upright or on its side; rounding errors do not
    /// count.
    static bool fits(const QSizeF &size, const QSizeF &area);

    /// Maps the unit square of a picture to the page in points: of the photo's stored pixels with their
    /// orientation or, without one, of a picture that is already upright.
    QTransform toPage(ExifOrientation orientation = {}) const;

    /// What is seen of the photo on the page, in points.
    QRectF seen(const PageGeometry &page) const { return target & clip & page.printed(); }
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
