// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PdfWriter.h"
#include "PlacedPhoto.h"
#include "PrintJob.h"

namespace printdialog {

/// The document sent to a queue for one photo.
struct JobDocument
{
    QByteArray data;     ///< Sent byte for byte.
    QByteArray mimeType; ///< For example "image/jpeg"; the server chooses its filters by it.
    QString name;        ///< The photo's file name: the job's title, and the document's name at the server.
};

/// Whether the photo's own file, sent unchanged, prints as the placement says, however the printer places a
/// picture: fitted, filled or stretched to the sheet. That holds when
/// - the file is a JPEG of the plain kind that every printer reads,
/// - its colors are sRGB, which every reader that ignores profiles assumes,
/// - its pixels are stored upright, since not every printer honours the Exif orientation,
/// - the whole sheet can be printed on, and
/// - the placement has no turn and covers the sheet to within 1/300 inch on each side.
bool canGoUntouched(const Photo &photo, const PageGeometry &page, const PlacementChoice &choice);

/// Makes the document for a photo. It is the unchanged file when the queue passes that type to its printer as
/// it is and canGoUntouched(), or when the queue has no PPD to place the photo by; else a PDF of the page.
Result<JobDocument, PdfFault> jobDocument(const PlacedPhoto &placed, const PrintJob &job);

} // namespace printdialog
