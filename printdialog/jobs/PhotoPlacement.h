// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"
#include "PageGeometry.h"

#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QTransform>

namespace printdialog {

/// Where a photo goes on a page. The preview and the printed page both come from here.
struct PhotoPlacement
{
    QRectF target;        ///< The photo on the page, in points, as it lies there after the turn.
    int quarterTurns = 0; ///< Clockwise, of the upright photo: 0 or 1.

    /// The photo as large as the imageable area lets it be, undistorted and centred in that area. It is
    /// turned when that makes it larger. `seenSize` is the size of the upright photo in pixels; neither it
    /// nor the imageable area is empty.
    static PhotoPlacement fit(const QSize &seenSize, const PageGeometry &page);

    /// From the unit square of a picture to the page in points. Of the photo's stored pixels with their
    /// orientation; or, without one, of a picture that is upright already.
    QTransform toPage(ExifOrientation orientation = {}) const;
};

} // namespace printdialog
