// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// The names of presets: any that people type. The instance of a queue that CUPS keeps a preset as cannot
/// have each of their characters, so that it is called by the name with these mapped: "My preset" is
/// "My%20preset", as in "lp -d queue/My%20preset". No two names have the same instance.
class PresetName
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PresetName)

public:
    /// The name that was typed, without spaces around it and without invisible characters that turn the
    /// direction of writing. Control characters stay, for objection() to name them.
    static QString cleaned(const QString &typed);
    /// Why no preset can have this name; nothing when it can.
    static SettingsFailure objection(const QString &name);
    /// Whether CUPS takes the two for the same: the case of ASCII letters does not matter.
    static bool areSame(const QString &one, const QString &other);

    /// The instance for a preset of the name. A name that CUPS takes as it is stays as it is.
    static QString instanceOf(const QString &name);
    /// The name that has the instance; an instance with characters that instanceOf() maps is its own name.
    static QString ofInstance(const QString &instance);
};

} // namespace printdialog
