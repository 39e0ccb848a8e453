// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltInPresets.h"

#include "PresetName.h"
#include "SettingsFile.h"
#include "StoredChoices.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QStandardPaths>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int version = 1;

/// By name, as a map keeps them.
using Sets = QMap<QString, QMap<QString, QString>>;

/// What this version does not understand is left alone, not written over.
Result<Sets, SettingsFault> setsIn(const QByteArray &text)
{
    const QJsonObject content = QJsonDocument::fromJson(text).object();
    if (!text.isEmpty() && content[QLatin1String("version")].toInt() != version) {
        return Failure<SettingsFault>{
            SettingsFault::NotReadable,
            BuiltInPresets::tr("The file %1 has no presets that this version understands. Move it away.")
                .arg(BuiltInPresets::file()),
            {}};
    }
    Sets sets;
    const QJsonObject presets = content[QLatin1String("presets")].toObject();
    for (auto preset = presets.begin(); preset != presets.end(); ++preset) {
        if (!PresetName::objection(preset.key()))
            sets.insert(preset.key(), choicesFromJson(preset->toObject()));
    }
    return sets;
}

QByteArray textOf(const Sets &sets)
{
    QJsonObject presets;
    for (auto set = sets.cbegin(); set != sets.cend(); ++set)
        presets.insert(set.key(), jsonOfChoices(*set));
    return QJsonDocument({{QStringLiteral("version"), version}, {QStringLiteral("presets"), presets}})
        .toJson();
}

QList<Preset> presetsOf(const Sets &sets)
{
    QList<Preset> presets;
    for (auto set = sets.cbegin(); set != sets.cend(); ++set)
        presets += {set.key(), *set, {}, true, {}};
    return presets;
}

SettingsFailure changeSets(const std::function<SettingsFailure(Sets &)> &change)
{
    return SettingsFile::change(BuiltInPresets::file(),
                                [&](const QByteArray &before) -> Result<QByteArray, SettingsFault> {
                                    auto sets = setsIn(before);
                                    if (!sets)
                                        return sets.failure();
                                    if (const auto failure = change(*sets))
                                        return *failure;
                                    return textOf(*sets);
                                });
}

} // namespace

QString BuiltInPresets::file()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QLatin1String("/corvel-print/presets/built-in.json");
}

Result<QList<Preset>, SettingsFault> BuiltInPresets::presets() const
{
    const auto text = SettingsFile::read(file());
    if (!text)
        return text.failure();
    const auto sets = setsIn(*text);
    if (!sets)
        return sets.failure();
    Presets presets = presetsOf(*sets);
    std::ranges::sort(presets, {}, [](const Preset &preset) { return preset.name.toLower(); });
    return presets;
}

SettingsFailure BuiltInPresets::write(const QString &name, const QMap<QString, QString> &options, bool isNew)
{
    return changeSets([&](Sets &sets) -> SettingsFailure {
        const Presets presets = presetsOf(sets);
        if (auto failure = isNew ? mayAdd(presets, name) : mayChange(presets, name))
            return failure;
        const Preset *known = find(presets, name);
        sets.insert(known ? known->name : name, options);
        return std::nullopt;
    });
}

SettingsFailure BuiltInPresets::writeName(const QString &name, const QString &newName)
{
    return changeSets([&](Sets &sets) -> SettingsFailure {
        const Presets presets = presetsOf(sets);
        if (auto failure = mayChange(presets, name))
            return failure;
        if (!PresetName::areSame(name, newName)) {
            if (auto failure = mayAdd(presets, newName))
                return failure;
        }
        sets.insert(newName, sets.take(find(presets, name)->name));
        return std::nullopt;
    });
}

SettingsFailure BuiltInPresets::writeWithout(const QString &name)
{
    return changeSets([&](Sets &sets) -> SettingsFailure {
        const Presets presets = presetsOf(sets);
        if (auto failure = mayChange(presets, name))
            return failure;
        sets.remove(find(presets, name)->name);
        return std::nullopt;
    });
}

} // namespace printdialog
