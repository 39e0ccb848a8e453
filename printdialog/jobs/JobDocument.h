// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PdfWriter.h"
#include "PlacedPhoto.h"
#include "PrintJob.h"

namespace printdialog {

/// What a queue is sent for one photo.
struct JobDocument
{
    QByteArray data;     ///< Sent byte for byte.
    QByteArray mimeType; ///< For example "image/jpeg"; the server chooses its filters by it.
    QString name;        ///< The photo's file name: the job's title, and the document's name at the server.
};

/// Whether the photo's own file, printed by itself, comes out as the placement on the page has it, however
/// the printer places a picture: fitted, filled or stretched to the sheet. That is so when
/// - the file is a JPEG of the plain kind that every printer reads, one picture without anything transparent,
/// - its colours are sRGB, as everything takes them for that reads no profile,
/// - its pixels are stored upright, since what becomes of a note about their orientation is anybody's guess,
/// - the whole sheet can be printed on, and
/// - the placement turns nothing and covers the sheet to within a dot of 300 to the inch on each side.
bool canGoUntouched(const Photo &photo, const PageGeometry &page, const PlacementChoice &choice);

/// What a queue is sent for a photo: the untouched file when the queue hands that type to its printer as it
/// is and the file can go untouched, or when the queue has no PPD to place anything by; else a PDF of the
/// page.
Result<JobDocument, PdfFault> jobDocument(const PlacedPhoto &placed, const PrintJob &job);

} // namespace printdialog
