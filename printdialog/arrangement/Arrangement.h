// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementStyle.h"
#include "PageChoice.h"
#include "PlacedPhoto.h"
#include "PrintSheet.h"
#include "SheetPlan.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>

namespace printdialog {

/// What is to be printed: photos and pages of documents in their order, each as it is wanted, which of the
/// pages, and how they share sheets. A value.
struct Arrangement
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Arrangement)

public:
    QList<PlacedPhoto> photos;
    SheetLayout layout = {};
    PageChoice pages = {};

    /// Which photo lies where. The page's printed area is not empty.
    SheetPlan plan(const PageGeometry &page) const;
    /// A sheet of the plan, which was made from this arrangement.
    PrintSheet sheet(const LaidSheet &laid) const;
    /// Consecutive sheets of a plan that one job prints.
    struct SheetRange
    {
        qsizetype first;
        qsizetype count;
    };
    /// The jobs of the plan, which was made from this arrangement, in their order: each photo's sheet is one,
    /// and so are consecutive sheets with pages of documents that are printed equally often.
    QList<SheetRange> jobs(const SheetPlan &plan) const;
    JobSheets jobSheets(const SheetPlan &plan, const SheetRange &range) const;
    /// The number of pages of documents, printed or not.
    qsizetype pageCount() const;
    /// Arranges all photos in the style, each in the middle of its place unless the style names another crop.
    void setStyle(const ArrangementStyle &style);
    /// The absolute paths of the photos, in their order.
    QStringList paths() const;
    /// The placements of the photos, in their order.
    QList<PlacementChoice> placements() const;
    /// As a printer gets it that takes only files as they are: each photo alone, without a placement.
    Arrangement unplaced() const;
    /// The lines below a photo on a sheet with captions.
    static QStringList captionOf(const Photo &photo, Caption caption);
};

} // namespace printdialog
