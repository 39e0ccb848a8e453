// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementModel.h"

#include <QtCore/QCoreApplication>

#include <optional>

namespace printdialog {

/// What all photos that an edit is made of have in common; nothing when they differ, or when there is none.
template <class Read>
auto commonValue(const ArrangementModel &photos, const Read &read)
    -> std::optional<std::decay_t<decltype(read(PlacedPhoto()))>>
{
    const QList<int> scope = photos.scope();
    if (scope.isEmpty())
        return std::nullopt;
    const auto first = read(photos.photos().at(scope.constFirst()));
    for (const int index : scope) {
        if (read(photos.photos().at(index)) != first)
            return std::nullopt;
    }
    return first;
}

/// What a control shows when the selected photos differ.
inline QString severalText()
{
    return QCoreApplication::translate("CommonValue", "Several");
}

} // namespace printdialog
