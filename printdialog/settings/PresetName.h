// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// The names of presets, as people type them. CUPS stores a preset as an instance of a queue, and an
/// instance's name cannot have all characters, so these are mapped: "My preset" becomes "My%20preset", as in
/// "lp -d queue/My%20preset". No two names have the same instance.
class PresetName
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PresetName)

public:
    /// The typed name without surrounding spaces and without invisible characters that change the writing
    /// direction. Control characters stay, so that objection() can report them.
    static QString cleaned(const QString &typed);
    /// Why a preset cannot have this name; nothing when it can.
    static SettingsFailure objection(const QString &name);
    /// Whether CUPS treats the two as equal: ASCII letters are compared case-insensitively.
    static bool areSame(const QString &one, const QString &other);

    /// The instance for a preset of the name. A name that CUPS accepts is unchanged.
    static QString instanceOf(const QString &name);
    /// The name of the instance; an instance with characters that instanceOf() maps is its own name.
    static QString ofInstance(const QString &instance);
};

} // namespace printdialog
