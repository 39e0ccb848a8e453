// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "BuiltInDocument.h"
#include "OutputFault.h"
#include "PrintJob.h"
#include "PrintSheet.h"
#include "PrintedNames.h"
#include "Result.h"

#include <QtCore/QString>

namespace printdialog {

/// The printer without a device: for photo.jpg it writes photo.pdf, the page, and photo.ticket.json, the job;
/// for a document, a PDF with all of its sheets.
class BuiltInPrinter
{
public:
    /// Writes both files to the folder of `names`, or neither. A damaged photo is printed only if it is
    /// accepted. A missing folder is created, with its parents, and removed again when the job fails. `names`
    /// chooses a free name, which is marked as taken when the job has succeeded. The ticket holds the number
    /// of copies; the PDF has a page for each sheet. May run on any thread, one call at a time per `names`.
    static Result<PrintedFiles, OutputFault> print(const JobSheets &sheets, const PrintJob &job,
                                                   PrintedNames &names);
};

} // namespace printdialog
