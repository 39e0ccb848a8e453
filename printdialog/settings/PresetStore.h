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
    QMap<QString, QString> options; ///< option keyword to choice keyword, and "copies"
    bool isWritable = true;         ///< false: a system preset, which only the administrator can change
    QString instance;               ///< its name in CUPS (see PresetName)
};

/// The presets of one printer. Those of a queue are its instances in the user's lpoptions file, in the format
/// of lpoptions(1), so that "lp -d queue/preset" prints the same. Those of the built-in printer are in a
/// private file of that format. Changes are atomic and leave everything else in the file unchanged. Only
/// small files are read and written; no server is involved.
class PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PresetStore)

public:
    /// The presets of a CUPS queue: its instances in the system's and the user's lpoptions.
    explicit PresetStore(const QString &queue);
    static PresetStore builtIn();
    /// The presets of a queue or the built-in printer.
    static PresetStore of(const QString &printer, bool isBuiltIn);

    /// The user's file: $HOME/.cups/lpoptions.
    static QString userFile();
    /// The file that the presets are written to.
    QString file() const { return file_; }

    using Presets = QList<Preset>;

    /// The preset with the name; null when there is none.
    static const Preset *find(const Presets &presets, const QString &name);
    /// The preset meant by "queue/preset": by instance, or else by name.
    static const Preset *findInstance(const Presets &presets, const QString &text);
    /// A sentence for people: the printer has no preset with the name. Lists its presets if they are few.
    static QString missing(const QString &printer, const QString &name, const Presets &presets);
    /// Replaces a preset's name in "queue/preset" by its instance; anything else is unchanged.
    static Destination destination(const Destination &typed);

    /// Sorted by name.
    Result<QList<Preset>, SettingsFault> presets() const;
    /// The options for the queue without a preset, in the system's and the user's lpoptions. As with lp(1),
    /// presets do not inherit them. Empty when the files cannot be read.
    QMap<QString, QString> queueOptions() const;

    /// Adds a preset. Failures: BadName, NameTaken, and those of the file.
    SettingsFailure add(const QString &name, const QMap<QString, QString> &options);
    /// Replaces a preset's choices.
    SettingsFailure update(const QString &name, const QMap<QString, QString> &options);
    SettingsFailure rename(const QString &name, const QString &newName);
    SettingsFailure remove(const QString &name);

private:
    using FileChange = std::function<SettingsFailure(LpoptionsFile &, const Presets &)>;
    SettingsFailure changeFile(const FileChange &change);
    SettingsFailure write(const QString &name, const QMap<QString, QString> &options, bool isNew);
    /// `user` is the content of file().
    Presets presetsIn(const QByteArray &user) const;

    /// Whether a new preset may have the name.
    static SettingsFailure mayAdd(const Presets &presets, const QString &name);
    /// Whether a preset with the name exists and the user may change it.
    static SettingsFailure mayChange(const Presets &presets, const QString &name);

    QString queue_;
    QString file_;
    QString systemFile_; ///< lpoptions in $CUPS_SERVERROOT or else /etc/cups; empty when there is none
};

} // namespace printdialog
