// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DialogSession.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

struct Preset;

/// What has become of choices that were kept: those of a preset, or of the last time.
struct UsedChoices
{
    std::optional<int> copies; ///< From 1 to mostCopies; nothing when the choices do not say.
    QStringList leftOut;       ///< A sentence for each choice that cannot be made here.
};

/// Makes choices that were kept ("copies" among them, see StoredChoices.h) in a session whose panels are
/// loaded. A printer without a PPD has none but the copies.
UsedChoices useChoices(DialogSession &session, QMap<QString, QString> choices,
                       DialogSession::Unnamed unnamed = DialogSession::Unnamed::Kept);

/// The same with a preset, as lp(1) prints with it: what it does not name takes the PPD's default.
UsedChoices usePreset(DialogSession &session, const Preset &preset);

} // namespace printdialog
