// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltInPrinter.h"

#include "BuiltInDocument.h"
#include "JobDocument.h"

namespace printdialog {

namespace {

/// `name` is the common name of both files, without suffix.
Result<PrintedFiles, OutputFault> printAs(const QString &name, const JobSheets &sheets, const PrintJob &job,
                                          const OutputFolder &folder)
{
    auto document = BuiltInDocument::open(name, job, folder, sheets.hasPages());
    if (!document)
        return document.failure();
    for (const PrintSheet &sheet : sheets.sheets) {
        if (const auto failure = (*document)->add(sheet))
            return *failure;
    }
    if (hasBacksFirst(sheets, job))
        (*document)->putFrontsFirst();
    return (*document)->finish();
}

} // namespace

Result<PrintedFiles, OutputFault> BuiltInPrinter::print(const JobSheets &sheets, const PrintJob &job,
                                                        PrintedNames &names)
{
    constexpr int mostTries = 100;
    for (int tries = 1;; ++tries) {
        const QString name = names.nameFor(sheets.firstPhoto().path());
        auto files = printAs(name, sheets, job, names.folder());
        const bool isTaken = !files && files.failure().reason == OutputFault::NameTaken;
        if (files || (isTaken && !names.folder().isOverwritten))
            names.markTaken(name);
        // Another program took the name after it was found to be free: try another one.
        if (!isTaken || names.folder().isOverwritten || tries == mostTries)
            return files;
    }
}

} // namespace printdialog
