// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementModel.h"

#include <QtCore/QCoreApplication>

#include <optional>

namespace printdialog {

/// What all selected photos have in common; nothing when they differ, or when there is none.
template <class Read>
auto commonValue(const ArrangementModel &photos, const Read &read)
    -> std::optional<std::decay_t<decltype(read(PlacedPhoto()))>>
{
    if (photos.selection().isEmpty())
        return std::nullopt;
    const auto first = read(photos.photos().at(photos.selection().constFirst()));
    for (const int index : photos.selection()) {
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
