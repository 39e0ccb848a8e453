// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "BuiltInPrinter.h"
#include "JobSubmission.h"
#include "PdfWriter.h"

namespace printdialog {

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
Result<SubmittedDocument, PdfFault> jobDocument(const Photo &photo, const PrintJob &job);

} // namespace printdialog
