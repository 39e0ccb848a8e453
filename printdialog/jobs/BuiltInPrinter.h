// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OutputFault.h"
#include "PlacedPhoto.h"
#include "PrintJob.h"
#include "PrintedNames.h"
#include "Result.h"

#include <QtCore/QString>

namespace printdialog {

/// The files that a job has left; absolute paths.
struct PrintedFiles
{
    QString pdf;
    QString ticket;
};

/// The printer that needs no printer: for photo.jpg it leaves photo.pdf, the page, and photo.ticket.json, the
/// job.
class BuiltInPrinter
{
public:
    /// Leaves both files in the folder of `names`, or none; none for a damaged photo that nobody accepts. A
    /// missing folder is made, with the folders above it; when the job fails it is removed again. `names`
    /// gives the files a name that is free, and learns of it when the job has succeeded. Copies are counted
    /// in the ticket; the PDF has one page. May run on any thread, one call per `names`.
    ///
    /// The ticket is a JSON object, UTF-8 and indented: "printer", "document" (the photo's absolute path),
    /// "options" and "summary" (objects of texts), "copies" (a number).
    static Result<PrintedFiles, OutputFault> print(const PlacedPhoto &placed, const PrintJob &job,
                                                   PrintedNames &names);
};

} // namespace printdialog
