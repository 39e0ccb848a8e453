// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PresetStore.h"

namespace printdialog {

/// The presets of the built-in printer, which is not a CUPS queue: one JSON file in the user's configuration
/// folder.
class BuiltInPresets final : public PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::BuiltInPresets)

public:
    Result<QList<Preset>, SettingsFault> presets() const override;

    static QString file();

protected:
    SettingsFailure write(const QString &name, const QMap<QString, QString> &options, bool isNew) override;
    SettingsFailure writeName(const QString &name, const QString &newName) override;
    SettingsFailure writeWithout(const QString &name) override;
};

} // namespace printdialog
