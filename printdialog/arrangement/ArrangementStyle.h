// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PlacementChoice.h"
#include "SheetLayout.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// How photos are arranged before anything is said about one of them: what a preset holds, and what comes
/// back with a printer. A value.
struct ArrangementStyle
{
    PlacementChoice placement = {}; ///< Its crop is not stored.
    SheetLayout layout = {};

    /// Takes the style out of stored options, among which it stands as "corvel-placement" and
    /// "corvel-layout"; a printer ignores both. Nothing when neither is there; what is unreadable counts as
    /// usual.
    static std::optional<ArrangementStyle> takeFrom(QMap<QString, QString> &options);
    /// Adds it to options to be stored.
    void insertInto(QMap<QString, QString> &options) const;

    bool operator==(const ArrangementStyle &) const = default;
};

} // namespace printdialog
