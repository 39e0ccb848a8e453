// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintRun.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// The report on a run: the photo's sentence when there is one photo, else how many were printed and how many
/// were not, with the sentences as details.
class OutcomeText
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::OutcomeText)

public:
    OutcomeText(const PrintOutcome &outcome, const PrintJob &job)
        : outcome_(outcome)
        , job_(job)
    {
    }

    /// A few lines, whatever the number of photos.
    QString summary() const;
    /// A line for each photo, those first that were not printed; empty when the summary says everything.
    QString details() const;

private:
    QString counted() const;
    QString allPrinted() const;
    QString others() const;

    const PrintOutcome &outcome_;
    const PrintJob &job_;
};

} // namespace printdialog
