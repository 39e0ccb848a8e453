// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PdfFile.h"
#include "PdfImage.h"
#include "PrintSheet.h"
#include "Result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QIODevice>

namespace printdialog {

/// Why a PDF could not be made.
enum class PdfFault {
    PhotoUnusable, ///< A photo cannot be decoded.
    PageUnusable,  ///< The page's size or imageable area is not possible in a PDF.
    WriteFailed,   ///< The device reported an error.
};

/// Makes the printed pages: a PDF with a page for each sheet. A photo that lies on it several times is in it
/// once. The same sheets give the same bytes: the creation date is that of the first photo's file. May be
/// used on any thread, one at a time.
class PdfWriter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PdfWriter)

public:
    using Embedding = PdfImage::Embedding;
    using Failed = std::optional<Failure<PdfFault>>;

    /// Borrows the device, which is open for writing and may be sequential. It may have received a part of
    /// the PDF when something fails.
    explicit PdfWriter(QIODevice &device);
    Q_DISABLE_COPY_MOVE(PdfWriter)

    /// Adds a page with the sheet. Everything outside the page's imageable area is clipped. A sheet with
    /// an unusable photo gets no page, and other sheets can still be added. Any other failure spoils the
    /// document.
    /// @param offset in points: everything is moved by it, so that it is in its place on the paper of a
    /// printer that prints beside it
    Failed add(const PrintSheet &sheet, const PageGeometry &page, const QPointF &offset = {});
    /// Ends the document, with at least one page.
    Failed finish();

    /// The PDF of one photo on a page of its own.
    static Result<Embedding, PdfFault> write(const Photo &photo, const PageGeometry &page, QIODevice &device,
                                             const PlacementChoice &choice = {});

private:
    struct Image
    {
        int number;
        Embedding embedding;
    };

    Result<Image, PdfFault> imageOf(const Photo &photo);
    Failure<PdfFault> writeFailure() const;

    QIODevice &device_;
    PdfFile file_;
    int catalog_;
    int pages_;
    QList<int> pageNumbers_;
    QHash<FileIdentity, Image> images_;
    QString title_; ///< the first sheet's name
    QDateTime created_;
};

} // namespace printdialog
