// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"
#include "PageGeometry.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QTransform>

namespace printdialog {

/// How large a photo is made on its page. It is never distorted.
enum class Scaling {
    Fit,        ///< As large as it goes without losing a part.
    Fill,       ///< As small as it goes without leaving a part of the area free; the rest is cut off.
    ActualSize, ///< As large as its resolution makes it; what does not fit is cut off.
};

/// What is wanted of a photo's place on its page. A value; the default is what a photo gets unasked.
struct PlacementChoice
{
    Scaling scaling = Scaling::Fit;
    /// Quarter turns clockwise, 0 to 3, on top of the turn that a page brings with it.
    int turns = 0;
    /// Which part of a photo that is cut is kept, along the sides of the upright photo: from 0 (left, top)
    /// over 0.5 (the middle) to 1 (right, bottom). A photo smaller than the area is moved in it. Fit always
    /// takes the middle.
    QPointF crop{0.5, 0.5};

    bool operator==(const PlacementChoice &) const = default;
};

/// Where a photo goes on a page. The preview and the printed page both come from here.
struct PhotoPlacement
{
    QRectF target;        ///< The whole photo on the page, in points, as it lies there after the turn.
    QRectF area;          ///< Where the photo was to go, in points. Only the imageable area is ever printed.
    int quarterTurns = 0; ///< Clockwise, of the upright photo, 0 to 3.
    int pageTurns = 0;    ///< How many of them the page brings with it, since the photo suits it better so.

    /// `seenSize` is the size of the upright photo in pixels; neither it nor the imageable area is empty.
    /// The area is the imageable one, and, unless it is to be filled, the part of it that is on the sheet.
    static PhotoPlacement place(const QSize &seenSize, double pixelsPerInch, const PageGeometry &page,
                                const PlacementChoice &choice);

    /// From the unit square of a picture to the page in points. Of the photo's stored pixels with their
    /// orientation; or, without one, of a picture that is upright already.
    QTransform toPage(ExifOrientation orientation = {}) const;

    /// By how much the area is wider and higher than the photo, in points; negative where the photo is.
    QPointF slack() const;
    /// The choice that brings the photo as far as it goes in the direction of a distance on the page, in
    /// points. The same choice when the photo cannot be moved that way.
    PlacementChoice moved(const PlacementChoice &choice, const QPointF &distance) const;
    /// The share of the photo, 0 to 1, that is not printed on the page.
    double cutOff(const PageGeometry &page) const;
};

} // namespace printdialog
