// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageGeometry.h"
#include "PdfImage.h"
#include "Photo.h"
#include "PhotoPlacement.h"
#include "Result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QIODevice>

namespace printdialog {

/// Why a PDF could not be made.
enum class PdfFault {
    PhotoUnusable, ///< The photo cannot be decoded.
    PageUnusable,  ///< The page has no size or no imageable area that a PDF could have.
    WriteFailed,   ///< The device did not take it.
};

/// Makes the page that is printed: a PDF of one page with one photo on it.
class PdfWriter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PdfWriter)

public:
    using Embedding = PdfImage::Embedding;

    /// Writes the PDF to an open device, which may have taken a part of it when this fails. What of the photo
    /// lies outside the page's imageable area is not shown. The same photo, page and choice give the same
    /// bytes: the creation date is that of the photo's file. May run on any thread.
    static Result<Embedding, PdfFault> write(const Photo &photo, const PageGeometry &page, QIODevice &device,
                                             const PlacementChoice &choice = {});
};

} // namespace printdialog
