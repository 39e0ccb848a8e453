// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "PrintRun.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// The report on a run: the sheet's sentence when there is one sheet, else how many were printed and how many
/// were not, with the sentences as details. They are called photos where each has a sheet of its own, and
/// jobs where the pages of a document are one.
class OutcomeText
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::OutcomeText)

public:
    OutcomeText(const PrintOutcome &outcome, const PrintJob &job, const Arrangement &arrangement)
        : outcome_(outcome)
        , job_(job)
        , unit_(unitOf(arrangement))
    {
    }

    /// What is counted.
    enum class Unit { Photos, Sheets, Jobs };
    static Unit unitOf(const Arrangement &arrangement)
    {
        return arrangement.pageCount() > 0                            ? Unit::Jobs
               : arrangement.layout.kind != SheetLayout::Kind::Single ? Unit::Sheets
                                                                      : Unit::Photos;
    }

    /// A few lines, whatever the number of sheets.
    QString summary() const;
    /// A line for each sheet, those first that were not printed; empty when the summary says everything.
    QString details() const;

private:
    QString say(const QString &photos, const QString &sheets, const QString &jobs) const;
    QString counted() const;
    QString allPrinted() const;
    QString others() const;

    const PrintOutcome &outcome_;
    const PrintJob &job_;
    Unit unit_;
};

} // namespace printdialog
