// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorLookup.h"
#include "Photo.h"
#include "PhotoPlacement.h"
#include "PictureAdjustment.h"

#include <QtGui/QImage>

namespace printdialog {

/// What a page is a picture of.
struct PagePictureRequest
{
    Photo photo;
    PlacementChoice placement;
    PageGeometry page;
    PictureAdjustment adjustment;
    double dotsPerInch = 300; ///< of the print
};

/// The entire page as the window's preview shows it, in sRGB, on white, with its size on paper. A null image
/// when the photo cannot be decoded, or the page is not usable. Takes a fraction of a second.
/// @param longestSide of the picture, in pixels
QImage pagePicture(const PagePictureRequest &request, int longestSide);

} // namespace printdialog
