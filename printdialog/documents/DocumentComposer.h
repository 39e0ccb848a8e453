// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Document.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QTransform>

namespace printdialog {

/// A page of a document in its place on a sheet.
struct ComposedPage
{
    Document document;
    int page = 0; ///< From 0 on.
    QTransform
        toSheet; ///< Maps the unit square of the page, as it is seen, to the sheet in points; y runs down.
    QRectF clip; ///< In points on the sheet: nothing is printed outside.
};

/// One side of a sheet of paper, to be composed of pages.
struct ComposedSheet
{
    QSizeF size;                    ///< In points.
    QList<ComposedPage> pages = {}; ///< Painted in this order; none on an empty side.
};

/// Makes a PDF with a page for each sheet. A page that lies alone on a sheet of its own size, upright and not
/// scaled, goes in as it is, with its annotations; any other becomes a form on the sheet (PDF 1.7, 8.10). The
/// content streams of the pages stay as they are, byte for byte; what several sheets use is in the PDF once.
/// The structure is read and written by a process without rights (corvel-pdf-pages). The same sheets give the
/// same bytes. Blocks: for a worker, or the command line.
/// @param title of the PDF
Result<QByteArray, DocumentFault> composeDocument(const QList<ComposedSheet> &sheets, const QString &title);

} // namespace printdialog
