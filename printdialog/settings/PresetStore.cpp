// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetStore.h"

#include "BuiltInPresets.h"
#include "PlainText.h"
#include "PresetName.h"
#include "QueuePresets.h"
#include "StoredChoices.h"

#include <algorithm>

namespace printdialog {

QMap<QString, QString> Preset::choicesFor(const QStringList &printerOptions) const
{
    QMap<QString, QString> choices = options;
    for (auto entry = inherited.cbegin(); entry != inherited.cend(); ++entry) {
        const bool isOurs =
            entry.key() == QLatin1String(copiesOption) || printerOptions.contains(entry.key());
        if (isOurs && !choices.contains(entry.key()))
            choices.insert(entry.key(), entry.value());
    }
    return choices;
}

std::unique_ptr<PresetStore> PresetStore::open(const QString &printer, bool isBuiltIn)
{
    if (isBuiltIn)
        return std::make_unique<BuiltInPresets>();
    return std::make_unique<QueuePresets>(printer);
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

SettingsFailure PresetStore::rename(const QString &name, const QString &newName)
{
    if (name == newName)
        return std::nullopt;
    if (auto objection = PresetName::objection(newName))
        return objection;
    return writeName(name, newName);
}

SettingsFailure PresetStore::remove(const QString &name)
{
    return writeWithout(name);
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

QString PresetStore::destination(const QString &typed)
{
    const QString queue = typed.section(u'/', 0, 0);
    const QString preset = typed.section(u'/', 1);
    if (preset.isEmpty())
        return typed;
    const auto presets = QueuePresets(queue).presets();
    const Preset *found = presets ? findInstance(*presets, preset) : nullptr;
    return found ? queue + u'/' + found->instance : typed;
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
            tr("There is no preset \"%1\" any more. Save it under a new name.").arg(name),
            {}};
    if (!preset->isWritable)
        return Failure<SettingsFault>{
            SettingsFault::ReadOnly,
            tr("The preset \"%1\" is the system's. Save one of your own under a new name.").arg(name),
            {}};
    return std::nullopt;
}

} // namespace printdialog
