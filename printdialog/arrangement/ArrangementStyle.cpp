// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementStyle.h"

namespace printdialog {

namespace {

const QString placementKey = QStringLiteral("corvel-placement");
const QString layoutKey = QStringLiteral("corvel-layout");

} // namespace

std::optional<ArrangementStyle> ArrangementStyle::takeFrom(QMap<QString, QString> &options)
{
    if (!options.contains(placementKey) && !options.contains(layoutKey))
        return std::nullopt;
    return ArrangementStyle{PlacementChoice::fromText(options.take(placementKey)).value_or(PlacementChoice()),
                            SheetLayout::fromText(options.take(layoutKey)).value_or(SheetLayout())};
}

void ArrangementStyle::insertInto(QMap<QString, QString> &options) const
{
    options.insert(placementKey, placement.toText());
    options.insert(layoutKey, layout.toText());
}

} // namespace printdialog
