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
    /// Which sheet of how many.
    struct Number
    {
        qsizetype sheet; ///< from 1
        qsizetype of;
    };

    /// Makes the document without sending it. `uri` is the queue's own address; `names` chooses the names of
    /// the built-in printer's files.
    static Result<JobPlan, SheetPrinter::Fault> make(const PrintSheet &sheet, const PrintJob &job,
                                                     const QString &uri, PrintedNames &names,
                                                     const Number &number);

    /// One line per entry: "label: value".
    QStringList lines() const;
    /// An object with "queue", "server", "uri", "document", "format", "bytes", "untouched", "title", "copies"
    /// and "options"; for the built-in printer "queue", "files", "document", "copies" and "options". For both
    /// "sheet" and "sheets" (its number, and how many there are) and "photos", an array of objects with
    /// "file", the print's "left", "top", "width" and "height" on the page in millimeters, "turns" (quarter
    /// turns clockwise), "pixelsPerInch" and "cutOff" (the share that is not printed).
    QJsonObject json() const;

private:
    JobPlan(const PrintSheet &sheet, const PrintJob &job, const QString &uri, const Number &number)
        : sheet_(sheet)
        , number_(number)
        , job_(job)
        , uri_(uri)
    {
    }

    QJsonArray photosJson() const;

    PrintSheet sheet_;
    Number number_;
    PrintJob job_;
    QString uri_;
    JobDocument document_; ///< only for a queue
    QString server_;
    QStringList files_;
};

} // namespace printdialog
