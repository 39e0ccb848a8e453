// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetStore.h"

#include "LpoptionsFile.h"
#include "PlainText.h"
#include "PresetName.h"
#include "SettingsFile.h"
#include "StoredChoices.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

#include <algorithm>

namespace printdialog {

namespace {

/// Replaces the instances, which are the names so far, by names. lpoptions(1) accepts characters that are
/// mapped here: such a preset keeps its name, and another one that would get the same name is shown by its
/// instance.
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

PresetStore::PresetStore(const QString &queue)
    : queue_(queue)
    , file_(userFile())
    , systemFile_(QStringLiteral("%1/lpoptions")
                      .arg(qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"))))
{
}

PresetStore PresetStore::builtIn()
{
    PresetStore store(QStringLiteral("built-in"));
    store.file_ = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                  QLatin1String("/corvel-print/lpoptions");
    store.systemFile_.clear();
    return store;
}

PresetStore PresetStore::of(const QString &printer, bool isBuiltIn)
{
    if (!Destination(printer).isAddress())
        return isBuiltIn ? builtIn() : PresetStore(printer);
    // CUPS does not know it, and would read its slashes as the beginning of an instance.
    PresetStore store = builtIn();
    store.queue_ = QString::fromLatin1(QUrl::toPercentEncoding(printer));
    return store;
}

QString PresetStore::userFile()
{
    return QDir::homePath() + QLatin1String("/.cups/lpoptions");
}

Result<QList<Preset>, SettingsFault> PresetStore::presets() const
{
    const auto user = SettingsFile::read(file_);
    if (!user)
        return user.failure();
    return presetsIn(*user);
}

PresetStore::Presets PresetStore::presetsIn(const QByteArray &user) const
{
    // The system's file is optional: it need not be readable.
    const auto read = SettingsFile::read(systemFile_);
    const QByteArray system = read ? *read : QByteArray();
    Presets presets;
    for (const bool isUserFile : {false, true}) {
        const auto entries = LpoptionsFile(isUserFile ? user : system).entries();
        for (const LpoptionsFile::Entry &entry : entries) {
            const QString &instance = entry.destination.instance;
            // CUPS would not recognize a name that was cleaned.
            if (instance.isEmpty() || !PresetName::areSame(entry.destination.queue, queue_) ||
                plainText(instance) != instance)
                continue;
            const auto known = std::ranges::find_if(presets, [&instance](const Preset &preset) {
                return PresetName::areSame(preset.instance, instance);
            });
            if (known == presets.end()) {
                presets += {instance, entry.options, isUserFile, instance};
            } else {
                mergeOptions(known->options, entry.options);
                known->isWritable = isUserFile;
            }
        }
    }
    giveNames(presets);
    std::ranges::sort(presets, {}, [](const Preset &preset) { return preset.name.toLower(); });
    return presets;
}

QMap<QString, QString> PresetStore::queueOptions() const
{
    QMap<QString, QString> options;
    for (const QString &path : {systemFile_, file_}) {
        const auto text = SettingsFile::read(path);
        const auto entries = LpoptionsFile(text ? *text : QByteArray()).entries();
        for (const LpoptionsFile::Entry &entry : entries) {
            if (entry.destination.instance.isEmpty() && PresetName::areSame(entry.destination.queue, queue_))
                mergeOptions(options, entry.options);
        }
    }
    return options;
}

SettingsFailure PresetStore::changeFile(const FileChange &change)
{
    return SettingsFile::change(file_, [&](const QByteArray &before) -> Result<QByteArray, SettingsFault> {
        LpoptionsFile file(before);
        if (const auto failure = change(file, presetsIn(before)))
            return *failure;
        return file.text();
    });
}

SettingsFailure PresetStore::add(const QString &name, const QMap<QString, QString> &options)
{
    if (auto objection = PresetName::objection(name))
        return objection;
    return write(name, options, true);
}

SettingsFailure PresetStore::update(const QString &name, const QMap<QString, QString> &options)
{
    return write(name, options, false);
}

SettingsFailure PresetStore::write(const QString &name, const QMap<QString, QString> &options, bool isNew)
{
    return changeFile([&](LpoptionsFile &file, const Presets &presets) -> SettingsFailure {
        if (auto failure = isNew ? mayAdd(presets, name) : mayChange(presets, name))
            return failure;
        if (file.set({queue_, isNew ? PresetName::instanceOf(name) : find(presets, name)->instance}, options))
            return std::nullopt;
        return Failure<SettingsFault>{
            SettingsFault::TooLong,
            tr("The preset \"%1\" is not saved: with %2 options it is longer than the %3 bytes that CUPS "
               "reads. Save the settings instead.")
                .arg(name, QString::number(options.size()), QString::number(LpoptionsFile::longestLine)),
            {}};
    });
}

SettingsFailure PresetStore::rename(const QString &name, const QString &newName)
{
    if (name == newName)
        return std::nullopt;
    if (auto objection = PresetName::objection(newName))
        return objection;
    return changeFile([&](LpoptionsFile &file, const Presets &presets) -> SettingsFailure {
        if (auto failure = mayChange(presets, name))
            return failure;
        if (!PresetName::areSame(name, newName)) {
            if (auto failure = mayAdd(presets, newName))
                return failure;
        }
        if (file.rename({queue_, find(presets, name)->instance}, PresetName::instanceOf(newName)))
            return std::nullopt;
        return Failure<SettingsFault>{
            SettingsFault::TooLong,
            tr("The preset \"%1\" keeps its name: with the new one it is longer than the %2 bytes that CUPS "
               "reads. Choose a shorter one.")
                .arg(name, QString::number(LpoptionsFile::longestLine)),
            {}};
    });
}

SettingsFailure PresetStore::remove(const QString &name)
{
    return changeFile([&](LpoptionsFile &file, const Presets &presets) -> SettingsFailure {
        if (auto failure = mayChange(presets, name))
            return failure;
        file.remove({queue_, find(presets, name)->instance});
        return std::nullopt;
    });
}

const Preset *PresetStore::find(const Presets &presets, const QString &name)
{
    const auto found = std::ranges::find_if(
        presets, [&name](const Preset &preset) { return PresetName::areSame(preset.name, name); });
    return found == presets.end() ? nullptr : &*found;
}

const Preset *PresetStore::findInstance(const Presets &presets, const QString &text)
{
    const auto found = std::ranges::find_if(
        presets, [&text](const Preset &preset) { return PresetName::areSame(preset.instance, text); });
    return found == presets.end() ? find(presets, text) : &*found;
}

QString PresetStore::missing(const QString &printer, const QString &name, const Presets &presets)
{
    constexpr qsizetype few = 5;
    constexpr qsizetype longestName = 128;
    QStringList others;
    for (const Preset &preset : presets.first(std::min(presets.size(), few)))
        others += u'"' + plainText(preset.name, longestName) + u'"';
    const QString shownPrinter = plainText(printer, longestName);
    const QString shownName = plainText(name, longestName);
    if (presets.isEmpty())
        return tr("The printer \"%1\" has no preset \"%2\", nor any other. Choose the printer without a "
                  "preset.")
            .arg(shownPrinter, shownName);
    if (presets.size() > few)
        return tr("The printer \"%1\" has no preset \"%2\". Choose one of its %3 others, or the printer "
                  "without a preset.")
            .arg(shownPrinter, shownName, QString::number(presets.size()));
    return tr("The printer \"%1\" has no preset \"%2\". Its presets: %3. Choose one of them, or the printer "
              "without a preset.")
        .arg(shownPrinter, shownName, others.join(QLatin1String(", ")));
}

Destination PresetStore::destination(const Destination &typed)
{
    if (typed.instance.isEmpty())
        return typed;
    const auto presets = of(typed.queue, typed.isBuiltIn()).presets();
    const Preset *found = presets ? findInstance(*presets, typed.instance) : nullptr;
    return found ? Destination(typed.queue, found->instance) : typed;
}

SettingsFailure PresetStore::mayAdd(const Presets &presets, const QString &name)
{
    const Preset *taken = find(presets, name);
    if (!taken)
        return std::nullopt;
    return Failure<SettingsFault>{
        SettingsFault::NameTaken,
        tr("There is a preset \"%1\" already. Choose another name.").arg(taken->name),
        {}};
}

SettingsFailure PresetStore::mayChange(const Presets &presets, const QString &name)
{
    const Preset *preset = find(presets, name);
    if (!preset)
        return Failure<SettingsFault>{
            SettingsFault::NotThere,
            tr("The preset \"%1\" no longer exists. Save it under a new name.").arg(name),
            {}};
    if (!preset->isWritable)
        return Failure<SettingsFault>{
            SettingsFault::ReadOnly,
            tr("The preset \"%1\" is the system's. Save one of your own under a new name.").arg(name),
            {}};
    return std::nullopt;
}

} // namespace printdialog
