// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementStyle.h"
#include "DialogSession.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

struct Preset;

/// The result of making saved choices: those of a preset, or of the last time.
struct UsedChoices
{
    std::optional<int> copies;             ///< From 1 to mostCopies; nothing when the choices do not name it.
    std::optional<ArrangementStyle> style; ///< Nothing when the choices do not name it.
    QStringList leftOut;                   ///< A sentence for each choice that cannot be made here.
};

/// Makes saved choices (including "copies", see StoredChoices.h, and the arrangement's style) in a session
/// whose panels are loaded. For a printer without a PPD, only the copies and the options of the job apply.
UsedChoices useChoices(DialogSession &session, QMap<QString, QString> choices,
                       DialogSession::Unnamed unnamed = DialogSession::Unnamed::Kept);

/// Applies a preset as lp(1) prints with it: options that it does not name get the print server's default, or
/// else the PPD's.
UsedChoices usePreset(DialogSession &session, const Preset &preset);

/// Makes the choices that lp(1) prints with when no preset is named (see printerDefaults), for all options.
UsedChoices useDefaults(DialogSession &session);

} // namespace printdialog
