// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WatchOrder.h"

#include "PlainText.h"

#include <QtCore/QFileInfo>

namespace printdialog {

void WatchOrder::setStyle(const ArrangementStyle &wanted)
{
    style = wanted;
    style.placement.turns = 0; // of the photo that was shown
    using Kind = SheetLayout::Kind;
    const bool isOfSeveral = style.layout.kind == Kind::Contact || style.layout.kind == Kind::Pages ||
                             style.layout.kind == Kind::Booklet;
    if (!isOfSeveral)
        style.layout.isRepeated = true;
}

std::optional<QString> WatchOrder::whyImpossible() const
{
    if (job.destination.isBuiltIn() && QFileInfo(folder) == QFileInfo(job.folder.path))
        return tr("The built-in printer would leave its files in the watched folder, \"%1\". Choose another "
                  "folder for "
                  "them.")
            .arg(plainText(folder));
    // What fits for no photo is better reported now.
    if (job.isRaw())
        return std::nullopt;
    const SheetPlan plan =
        SheetPlan::make({LayoutItem{QSize(1500, 1000), 300, style.placement}}, style.layout, job.page);
    return plan.failure() ? std::optional(plan.failure()->text) : std::nullopt;
}

} // namespace printdialog
