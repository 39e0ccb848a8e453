// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "AtomicFiles.h"
#include "OutputFault.h"
#include "PrintJob.h"
#include "PrintSheet.h"
#include "Result.h"
#include "SheetPdf.h"

#include <QtCore/QJsonArray>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace printdialog {

/// The files that a job has written; absolute paths.
struct PrintedFiles
{
    QString pdf;
    QString ticket;
};

/// A PDF with a page for each sheet, and its ticket, on their way into a folder. Neither is there before
/// finish(). On one thread at a time.
///
/// The ticket is a JSON object, UTF-8 and indented: "printer", "document" (the first photo's absolute path),
/// "options" and "summary" (objects of texts), "copies" (a number). Of one sheet with several photos it has
/// their paths as "photos"; of several sheets it has "sheets", an array of objects with "photos" and
/// "copies", which the job's copies multiply.
class BuiltInDocument
{
public:
    /// Creates both files, so that an unusable folder or name is detected before the work. A missing folder
    /// is created, with its parents, and removed again unless the document is finished.
    /// @param name the common name of both files, without suffix
    /// @param hasPages whether pages of documents will lie on the sheets
    static Result<std::unique_ptr<BuiltInDocument>, OutputFault>
    open(const QString &name, const PrintJob &job, const OutputFolder &folder, bool hasPages = false);
    Q_DISABLE_COPY_MOVE(BuiltInDocument)

    /// Adds a page. A damaged photo that is not accepted is a failure. A sheet
    /// whose photos were checked before and turn out to be unusable gets no page, and other sheets can still
    /// be added. Any other failure spoils the document.
    std::optional<Failure<OutputFault>> add(const PrintSheet &sheet);
    /// See SheetPdf::putFrontsFirst().
    void putFrontsFirst() { writer_->putFrontsFirst(); }
    /// Call at most once, with at least one page.
    Result<PrintedFiles, OutputFault> finish();

private:
    BuiltInDocument(AtomicFiles files, const PrintJob &job, const OutputFolder &folder);

    QByteArray ticket() const;

    AtomicFiles files_;
    PrintJob job_;
    OutputFolder folder_;
    QIODevice *ticketDevice_ = nullptr; ///< of files_
    std::unique_ptr<SheetPdf> writer_;
    QJsonArray sheets_;
};

} // namespace printdialog
