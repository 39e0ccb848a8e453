// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OutputFault.h"
#include "PageGeometry.h"
#include "Photo.h"
#include "PhotoPlacement.h"
#include "PrintedNames.h"
#include "QueueTerms.h"
#include "Result.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// What is asked of a printer besides the photo.
struct PrintJob
{
    QString printer; ///< The printer's name.
    PageGeometry page;
    PlacementChoice placement;      ///< Of the photo on the page.
    QMap<QString, QString> options; ///< Option keyword to choice keyword.
    QMap<QString, QString> summary; ///< What people are shown: label to text.
    int copies = 1;
    bool checksPhoto = true; ///< Whether a damaged photo is refused.
    QueueTerms queue;        ///< Only for a queue.
};

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
    /// Leaves both files in the folder of `names`, or none. A missing folder is made, with the folders above
    /// it; when the job fails it is removed again. `names` gives the files a name that is free, and learns of
    /// it when the job has succeeded. Copies are counted in the ticket; the PDF has one page. May run on any
    /// thread, one call per `names`.
    ///
    /// The ticket is a JSON object, UTF-8 and indented: "printer", "document" (the photo's absolute path),
    /// "options" and "summary" (objects of texts), "copies" (a number).
    static Result<PrintedFiles, OutputFault> print(const Photo &photo, const PrintJob &job,
                                                   PrintedNames &names);
};

} // namespace printdialog
