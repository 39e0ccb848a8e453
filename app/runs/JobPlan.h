// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SheetPrinter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonObject>

namespace printdialog {

/// A dry run of one sheet: what printing it would send to a queue, or write as files. A snapshot.
class JobPlan
{
    Q_DECLARE_TR_FUNCTIONS(JobPlan)

public:
    /// Makes the document without sending it. `uri` is the queue's own address; `names` chooses the names of
    /// the built-in printer's files.
    static Result<JobPlan, SheetPrinter::Fault> make(const PrintSheet &sheet, const PrintJob &job,
                                                     const QString &uri, PrintedNames &names);

    /// One line per entry: "label: value".
    QStringList lines() const;
    /// An object with "queue", "server", "uri", "document", "format", "bytes", "untouched", "title", "copies"
    /// and "options"; for the built-in printer "queue", "files", "document", "copies" and "options".
    QJsonObject json() const;

private:
    JobPlan(const PrintSheet &sheet, const PrintJob &job, const QString &uri)
        : sheet_(sheet)
        , job_(job)
        , uri_(uri)
    {
    }

    PrintSheet sheet_;
    PrintJob job_;
    QString uri_;
    JobDocument document_; ///< only for a queue
    QString server_;
    QStringList files_;
};

} // namespace printdialog
