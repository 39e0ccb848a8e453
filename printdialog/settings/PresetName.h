// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// Which names a preset may have: those that CUPS and a shell take as the instance of a queue, as in
/// "lp -d queue/preset".
class PresetName
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PresetName)

public:
    /// Why no preset can have this name; nothing when it can.
    static SettingsFailure objection(const QString &name);
    /// Whether CUPS takes the two for the same: the case of ASCII letters does not matter.
    static bool areSame(const QString &one, const QString &other);
};

} // namespace printdialog
