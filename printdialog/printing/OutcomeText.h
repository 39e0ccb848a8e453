// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintRun.h"
#include "SheetLayout.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// The report on a run: the sheet's sentence when there is one sheet, else how many were printed and how many
/// were not, with the sentences as details. They are called photos where each has a sheet of its own.
class OutcomeText
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::OutcomeText)

public:
    OutcomeText(const PrintOutcome &outcome, const PrintJob &job, const SheetLayout &layout)
        : outcome_(outcome)
        , job_(job)
        , areShared_(layout.kind != SheetLayout::Kind::Single)
    {
    }

    /// A few lines, whatever the number of sheets.
    QString summary() const;
    /// A line for each sheet, those first that were not printed; empty when the summary says everything.
    QString details() const;

private:
    QString counted() const;
    QString allPrinted() const;
    QString others() const;

    const PrintOutcome &outcome_;
    const PrintJob &job_;
    bool areShared_; ///< the sheets, by several photos
};

} // namespace printdialog
