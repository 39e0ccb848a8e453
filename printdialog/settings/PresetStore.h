// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "SettingsFault.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <functional>

namespace printdialog {

class LpoptionsFile;

/// A named set of choices for one printer.
struct Preset
{
    QString name;
    QMap<QString, QString> options;   ///< option keyword to choice keyword, and "copies"
    QMap<QString, QString> inherited; ///< what the queue's own entry adds to those
    bool isWritable = true;           ///< false: the system's, which only its administrator changes
    QString instance;                 ///< what CUPS calls it (see PresetName)

    /// What it chooses on a printer with the options: its own choices, and what the queue's own entry adds
    /// about the printer or the copies. Most of such an entry is about something else.
    QMap<QString, QString> choicesFor(const QStringList &printerOptions) const;
};

/// The presets of one printer. Those of a queue are its instances in the user's lpoptions file, as
/// lpoptions(1) makes them, so that "lp -d queue/preset" prints alike; those of the built-in printer are in
/// such a file of the dialog's own. Each change is whole or not made, and leaves everything else in the file
/// as it is. Only small files are read and written; no server is asked.
class PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PresetStore)

public:
    /// Those of a CUPS queue: its instances in the system's and the user's lpoptions.
    explicit PresetStore(const QString &queue);
    static PresetStore builtIn();
    /// For the queue, or the built-in printer.
    static PresetStore of(const QString &printer, bool isBuiltIn);

    /// The user's: $HOME/.cups/lpoptions.
    static QString userFile();
    /// The file that the presets are written to.
    QString file() const { return file_; }

    using Presets = QList<Preset>;

    /// The preset of the name; null when there is none.
    static const Preset *find(const Presets &presets, const QString &name);
    /// The preset that "queue/preset" means: that of the instance, or else that of the name.
    static const Preset *findInstance(const Presets &presets, const QString &text);
    /// Says for people that the printer has no preset of the name, and which ones it has if they are few.
    static QString missing(const QString &printer, const QString &name, const Presets &presets);
    /// "queue/preset" as CUPS calls it when the preset is given by its name. Anything else stays as it is.
    static Destination destination(const Destination &typed);

    /// By name.
    Result<QList<Preset>, SettingsFault> presets() const;

    /// Adds a preset. Failures: BadName, NameTaken, and those of the file.
    SettingsFailure add(const QString &name, const QMap<QString, QString> &options);
    /// Gives a preset other choices.
    SettingsFailure update(const QString &name, const QMap<QString, QString> &options);
    SettingsFailure rename(const QString &name, const QString &newName);
    SettingsFailure remove(const QString &name);

private:
    using FileChange = std::function<SettingsFailure(LpoptionsFile &, const Presets &)>;
    SettingsFailure changeFile(const FileChange &change);
    SettingsFailure write(const QString &name, const QMap<QString, QString> &options, bool isNew);
    /// `user` is the content of file().
    Presets presetsIn(const QByteArray &user) const;

    /// Whether there may be a new preset of the name.
    static SettingsFailure mayAdd(const Presets &presets, const QString &name);
    /// Whether there is a preset of the name that the user may change.
    static SettingsFailure mayChange(const Presets &presets, const QString &name);

    QString queue_;
    QString file_;
    QString systemFile_; ///< lpoptions in $CUPS_SERVERROOT, or else in /etc/cups; empty where there is none
};

} // namespace printdialog
