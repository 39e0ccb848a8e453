// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueuePresets.h"

#include "LpoptionsFile.h"
#include "PlainText.h"
#include "PresetName.h"
#include "SettingsFile.h"

#include <QtCore/QDir>

#include <algorithm>

namespace printdialog {

namespace {

SettingsFailure
changeUserFile(const std::function<SettingsFailure(LpoptionsFile &, const QByteArray &)> &change)
{
    return SettingsFile::change(QueuePresets::userFile(),
                                [&](const QByteArray &before) -> Result<QByteArray, SettingsFault> {
                                    LpoptionsFile file(before);
                                    if (const auto failure = change(file, before))
                                        return *failure;
                                    return file.text();
                                });
}

/// Each has its instance for a name so far. lpoptions(1) takes characters that are mapped here: such a preset
/// keeps its name, and another one that would have the same is shown as its instance.
void giveNames(QList<Preset> &presets)
{
    for (Preset &preset : presets) {
        const QString name = PresetName::ofInstance(preset.instance);
        const bool isTaken = std::ranges::any_of(presets, [&name](const Preset &other) {
            return PresetName::areSame(other.instance, name) &&
                   PresetName::ofInstance(other.instance) == other.instance;
        });
        if (!isTaken)
            preset.name = name;
    }
}

} // namespace

QueuePresets::QueuePresets(const QString &queue)
    : queue_(queue)
{
}

QString QueuePresets::userFile()
{
    return QDir::homePath() + QLatin1String("/.cups/lpoptions");
}

QString QueuePresets::systemFile()
{
    const QString folder = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    return folder + QLatin1String("/lpoptions");
}

Result<QList<Preset>, SettingsFault> QueuePresets::presets() const
{
    const auto user = SettingsFile::read(userFile());
    if (!user)
        return user.failure();
    return withUsers(*user);
}

// What the system's file says is a help only: it need not be readable.
PresetStore::Presets QueuePresets::withUsers(const QByteArray &user) const
{
    const auto system = SettingsFile::read(systemFile());
    return together(system ? *system : QByteArray(), user);
}

PresetStore::Presets QueuePresets::together(const QByteArray &system, const QByteArray &user) const
{
    Presets presets;
    QMap<QString, QString> ofQueue;
    for (const bool isUsers : {false, true}) {
        const auto entries = LpoptionsFile(isUsers ? user : system).entries();
        for (const LpoptionsFile::Entry &entry : entries) {
            // A name that needs cleaning could not be handed back to CUPS.
            if (!PresetName::areSame(entry.queue, queue_) || plainText(entry.instance) != entry.instance)
                continue;
            if (entry.instance.isEmpty()) {
                ofQueue.insert(entry.options);
                continue;
            }
            const auto known = std::ranges::find_if(presets, [&entry](const Preset &preset) {
                return PresetName::areSame(preset.instance, entry.instance);
            });
            if (known == presets.end()) {
                // libcups hands an instance the options that its queue has by then.
                presets += {entry.instance, entry.options, ofQueue, isUsers, entry.instance};
            } else {
                known->options.insert(entry.options);
                known->isWritable = isUsers;
            }
        }
    }
    giveNames(presets);
    std::ranges::sort(presets, {}, [](const Preset &preset) { return preset.name.toLower(); });
    return presets;
}

SettingsFailure QueuePresets::write(const QString &name, const QMap<QString, QString> &options, bool isNew)
{
    return changeUserFile([&](LpoptionsFile &file, const QByteArray &before) -> SettingsFailure {
        const Presets presets = withUsers(before);
        if (auto failure = isNew ? mayAdd(presets, name) : mayChange(presets, name))
            return failure;
        if (file.set(queue_, isNew ? PresetName::instanceOf(name) : find(presets, name)->instance, options))
            return std::nullopt;
        return Failure<SettingsFault>{
            SettingsFault::TooLong,
            tr("The preset \"%1\" is not saved: with %2 options it is longer than the %3 bytes that CUPS "
               "reads. Save the settings instead.")
                .arg(name, QString::number(options.size()), QString::number(LpoptionsFile::longestLine)),
            {}};
    });
}

SettingsFailure QueuePresets::writeName(const QString &name, const QString &newName)
{
    return changeUserFile([&](LpoptionsFile &file, const QByteArray &before) -> SettingsFailure {
        const Presets presets = withUsers(before);
        if (auto failure = mayChange(presets, name))
            return failure;
        if (!PresetName::areSame(name, newName)) {
            if (auto failure = mayAdd(presets, newName))
                return failure;
        }
        if (file.rename(queue_, find(presets, name)->instance, PresetName::instanceOf(newName)))
            return std::nullopt;
        return Failure<SettingsFault>{
            SettingsFault::TooLong,
            tr("The preset \"%1\" keeps its name: with the new one it is longer than the %2 bytes that CUPS "
               "reads. Choose a shorter one.")
                .arg(name, QString::number(LpoptionsFile::longestLine)),
            {}};
    });
}

SettingsFailure QueuePresets::writeWithout(const QString &name)
{
    return changeUserFile([&](LpoptionsFile &file, const QByteArray &before) -> SettingsFailure {
        const Presets presets = withUsers(before);
        if (auto failure = mayChange(presets, name))
            return failure;
        file.remove(queue_, find(presets, name)->instance);
        return std::nullopt;
    });
}

} // namespace printdialog
