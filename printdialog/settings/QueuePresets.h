// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PresetStore.h"

namespace printdialog {

/// The presets of a CUPS queue: its instances in the system's and the user's lpoptions.
class QueuePresets final : public PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::QueuePresets)

public:
    explicit QueuePresets(const QString &queue);

    Result<QList<Preset>, SettingsFault> presets() const override;

    /// The user's file: $HOME/.cups/lpoptions.
    static QString userFile();
    /// The system's: lpoptions in $CUPS_SERVERROOT, or else in /etc/cups.
    static QString systemFile();

protected:
    SettingsFailure write(const QString &name, const QMap<QString, QString> &options, bool isNew) override;
    SettingsFailure writeName(const QString &name, const QString &newName) override;
    SettingsFailure writeWithout(const QString &name) override;

private:
    Presets together(const QByteArray &system, const QByteArray &user) const;
    Presets withUsers(const QByteArray &user) const;

    QString queue_;
};

} // namespace printdialog
