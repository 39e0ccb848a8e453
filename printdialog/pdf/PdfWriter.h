// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

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
    PageUnusable,  ///< The page's size or imageable area is not possible in a PDF.
    WriteFailed,   ///< The device reported an error.
};

/// Makes the printed page: a PDF of one page with one photo on it.
class PdfWriter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PdfWriter)

public:
    using Embedding = PdfImage::Embedding;

    /// Writes the PDF to an open device, which may have received a part of it when this fails. Parts of the
    /// photo outside the page's imageable area are clipped. The same photo, page and choice give the same
    /// bytes: the creation date is that of the photo's file. May run on any thread.
    static Result<Embedding, PdfFault> write(const Photo &photo, const PageGeometry &page, QIODevice &device,
                                             const PlacementChoice &choice = {});
};

} // namespace printdialog
