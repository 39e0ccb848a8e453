// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPlacement.h"

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtGui/QTransform>

#include <optional>

namespace printdialog {

/// Which part of a page is seen, and how large: the one transformation between the page and a picture of it,
/// in the window or in a file. A value. Sizes of the picture are in its logical pixels.
struct PageView
{
    PageGeometry page;
    std::optional<PhotoPlacement> placement; ///< of the current photo; nothing without one
    bool isShared = false;      ///< whether the page has several photos, and is shown as the paper lies
    bool isReadTurned = false;  ///< whether it is shown a quarter turn to the left all the same
    QSizeF room;                ///< the picture's size
    double margin = 0;          ///< kept free around the entire page
    double ratio = 1;           ///< device pixels to a logical one
    double dotsPerInch = 300;   ///< of the print
    std::optional<double> zoom; ///< device pixels to a dot of the print; nothing: the entire page
    QPointF center; ///< the point of the page, in points, that is in the picture's middle when zoomed

    /// Maps the page in points to the picture. A photo that lies on its side on a page of its own is shown
    /// upright, and the page is turned instead. What is cut off around that page is part of the picture,
    /// within limits.
    QTransform toRoom() const;
    /// Maps the page to the picture's device pixels.
    QTransform toPixels() const { return toRoom() * QTransform::fromScale(ratio, ratio); }
    /// Device pixels to an inch of the page.
    double pixelsPerInch() const;
    /// The zoom at which the entire page is seen.
    double zoomOfPage() const;

    /// The size of a picture without a margin that shows the entire page.
    /// @param longestSide in pixels
    QSize sizeWithin(int longestSide) const;

    /// The view at another zoom that keeps what is seen at this point of the picture where it is. A page that
    /// is smaller than the picture then is in its middle.
    PageView zoomed(double newZoom, const QPointF &kept) const;
    /// The view after what is seen was moved by this distance in the picture, as far as there is more to see.
    PageView panned(const QPointF &distance) const;
    /// The entire page again.
    PageView whole() const;

    bool operator==(const PageView &) const = default;

private:
    QRectF shown() const;
    bool isTurned() const { return isReadTurned || (placement && !isShared && placement->pageTurns != 0); }
    double fittingScale() const;
    double scale() const;
    PageView limited() const;
};

} // namespace printdialog
