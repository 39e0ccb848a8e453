// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SheetPrinter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace printdialog {

/// A dry run of one sheet: what printing it would send to a queue, or write as files. A snapshot.
class JobPlan
{
    Q_DECLARE_TR_FUNCTIONS(JobPlan)

public:
    /// Which sheet of how many; the first of several.
    struct Number
    {
        qsizetype sheet; ///< from 1
        qsizetype of;
    };

    /// Makes the document without sending it. `uri` is the queue's own address; `names` chooses the names of
    /// the built-in printer's files.
    static Result<JobPlan, SheetPrinter::Fault> make(const JobSheets &sheets, const PrintJob &job,
                                                     const QString &uri, PrintedNames &names,
                                                     const Number &number);

    /// One line per entry: "label: value".
    QStringList lines() const;
    /// An object with "queue", "server", "uri", "document", "format", "bytes", "untouched", "title", "copies"
    /// and "options"; for the built-in printer "queue", "files", "document", "copies" and "options". For both
    /// "sheet" and "sheets" (the first one's number, and how many there are) and "photos", an array of
    /// objects with "file", for a page of a document "page" and "sheet", the print's "left", "top", "width"
    /// and "height" on the page in millimeters, "turns" (quarter turns clockwise), "pixelsPerInch" and
    /// "cutOff" (the share that is not printed).
    QJsonObject json() const;

private:
    JobPlan(const JobSheets &sheets, const PrintJob &job, const QString &uri, const Number &number)
        : sheets_(sheets)
        , number_(number)
        , job_(job)
        , uri_(uri)
    {
    }

    QJsonArray photosJson() const;
    QStringList photoLines() const;

    JobSheets sheets_;
    Number number_;
    PrintJob job_;
    QString uri_;
    JobDocument document_; ///< only for a queue
    QString server_;
    QStringList files_;
};

} // namespace printdialog
