// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PictureAdjustment.h"
#include "PrintSheet.h"

#include <QtGui/QImage>

namespace printdialog {

/// What a page is a picture of.
struct PagePictureRequest
{
    PrintSheet sheet;
    PageGeometry page; ///< for which the sheet was laid out
    PictureAdjustment adjustment;
    double dotsPerInch = 300; ///< of the print
};

/// The entire page as the window's preview shows it, in sRGB, on white, with its size on paper. A null image
/// when a photo cannot be decoded, or the page is not usable. Takes a fraction of a second, and memory for a
/// few pixels of each photo for each one that it has in the picture. Captions need a QGuiApplication with
/// fonts.
/// @param longestSide of the picture, in pixels
QImage pagePicture(const PagePictureRequest &request, int longestSide);

} // namespace printdialog
