// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PdfWriter.h"
#include "PrintJob.h"
#include "PrintSheet.h"

namespace printdialog {

/// The document sent to a queue for the sheets of one job.
struct JobDocument
{
    QByteArray data;          ///< Sent byte for byte.
    QByteArray mimeType;      ///< For example "image/jpeg"; the server chooses its filters by it.
    QString name;             ///< The job's title, and the document's name at the server.
    bool isUntouched = false; ///< Whether it is a photo's own file, or a document as it was opened.
};

/// Whether the photo's own file, sent unchanged, prints as the placement says, however the printer places a
/// picture: fitted, filled or stretched to the sheet. That holds when
/// - the file is a JPEG of the plain kind that every printer reads,
/// - its colors are sRGB, which every reader that ignores profiles assumes,
/// - its pixels are stored upright, since not every printer honours the Exif orientation,
/// - the whole sheet can be printed on, and
/// - the placement has no turn and covers the sheet to within 1/300 inch on each side.
bool canGoUntouched(const Photo &photo, const PageGeometry &page, const PhotoPlacement &placement);

/// Whether the sheets are all pages of one document in their order, each upright and in its own size on a
/// sheet of that size, so that the document prints as it is.
bool isWholeDocument(const JobSheets &sheets, const PrintJob &job);

/// Whether backs come before their fronts: the sheets are in the other order, and printed on both sides.
bool hasBacksFirst(const JobSheets &sheets, const PrintJob &job);

/// Makes the document for a job's sheets. It is the unchanged file of a photo that is alone on its sheet when
/// the queue passes that type to its printer as it is and canGoUntouched(); a document when
/// isWholeDocument(); either when the queue is a raw one; else a PDF of the sheets.
Result<JobDocument, PdfFault> jobDocument(const JobSheets &sheets, const PrintJob &job);

/// Whether the printer is known not to take documents of the type.
bool lacksFormat(const PrintJob &job, const QByteArray &mimeType);

/// The job's attributes for a printer that describes itself by its own: its choices, and that the printer
/// does not scale what is placed on the page already, as far as the user leaves that open. Empty for others.
IppAttributes attributesFor(const PrintJob &job, const JobDocument &document);

} // namespace printdialog
