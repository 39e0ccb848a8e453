// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// The files that the program keeps, and the user's lpoptions. The first byte says which.

#include "DialogSession.h"
#include "Fuzzing.h"
#include "LpoptionsFile.h"
#include "PresetName.h"
#include "PresetStore.h"
#include "QueueCache.h"
#include "QueueSettings.h"
#include "SessionOpening.h"

#include <algorithm>

using namespace printdialog;

namespace {

const QString queue = QStringLiteral("fuzz");

void queueSettings(const QByteArray &content)
{
    fuzzing::write(QueueSettings::fileFor(queue), content);
    const QMap<QString, QString> choices = QueueSettings::load(queue);
    fuzzing::require(!QueueSettings::save(queue, choices), "settings that were read can be saved");
    fuzzing::require(QueueSettings::load(queue) == choices, "settings come back as they were saved");
}

bool hasPreset(const PresetStore &store, const QString &name)
{
    const auto presets = store.presets();
    return presets && std::ranges::any_of(*presets, [&](const Preset &each) { return each.name == name; });
}

void builtInPresets(const QByteArray &content)
{
    fuzzing::write(PresetStore::builtIn().file(), content);
    PresetStore store = PresetStore::builtIn();
    const auto before = store.presets();
    fuzzing::require(bool(before), "any file can be read");
    if (store.add(queue, {{QStringLiteral("Red"), QStringLiteral("1")}}))
        return; // the name is taken
    fuzzing::require(store.presets()->size() == before->size() + 1, "a preset that is added is one more");
    if (!store.rename(queue, QStringLiteral("renamed"))) {
        fuzzing::require(hasPreset(store, QStringLiteral("renamed")), "a preset has its new name");
        fuzzing::require(!store.remove(QStringLiteral("renamed")), "a preset can be removed");
        fuzzing::require(store.presets()->size() == before->size(), "the other presets stay");
    }
}

bool has(const LpoptionsFile &file, const QString &instance)
{
    return std::ranges::any_of(file.entries(), [&](const LpoptionsFile::Entry &entry) {
        return PresetName::areSame(entry.destination.queue, queue) &&
               PresetName::areSame(entry.destination.instance, instance);
    });
}

void lpoptions(const QByteArray &content)
{
    LpoptionsFile file(content);
    const QList<LpoptionsFile::Entry> before = file.entries();
    for (const LpoptionsFile::Entry &entry : before) {
        const bool isPlain = std::ranges::all_of(entry.options.keys(), [](const QString &key) {
            return std::ranges::all_of(key,
                                       [](QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); });
        });
        if (!isPlain || has(file, QStringLiteral("copy")))
            continue;
        if (file.set({queue, QStringLiteral("copy")}, entry.options)) {
            const auto copy = LpoptionsFile(file.text()).entries().constLast();
            fuzzing::require(copy.destination.queue == queue && copy.options == entry.options,
                             "options come back as they were written");
            file.rename({queue, QStringLiteral("copy")}, QStringLiteral("copied"));
            fuzzing::require(has(file, QStringLiteral("copied")), "an entry has its new name");
            file.remove({queue, QStringLiteral("copied")});
        }
        fuzzing::require(file.entries().size() == before.size(), "the other entries stay");
    }
}

void queueCache(const QByteArray &content)
{
    fuzzing::write(QueueCache::file(), content);
    const auto remembered = QueueCache::load();
    if (!remembered)
        return;
    QueueCache::save(*remembered);
    const auto again = QueueCache::load();
    fuzzing::require(again && again->ppd == remembered->ppd && again->queue.id() == remembered->queue.id(),
                     "a remembered queue comes back as it was saved");
}

void restoredChoices(const QByteArray &content)
{
    const LpoptionsFile file(content);
    auto session = openBuiltInPrinter(std::nullopt,
                                      content.size() % 2 == 0 ? PanelMode::Constraint : PanelMode::Settings);
    fuzzing::require(bool(session), "the built-in printer opens");
    (*session)->loadPanels();
    for (const LpoptionsFile::Entry &entry : file.entries())
        (*session)->restoreChoices(entry.options);
    const auto job = (*session)->jobOptions();
    fuzzing::require(bool(job), "what was restored can be printed");
    for (auto option = job->options.cbegin(); option != job->options.cend(); ++option)
        fuzzing::require((*session)->options().choice(option.key(), option.value()) != nullptr,
                         "only choices of the PPD are sent");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray content = fuzzing::input(data + 1, size - 1);
    switch (data[0]) {
    case 'q':
        queueSettings(content);
        break;
    case 'b':
        builtInPresets(content);
        break;
    case 'l':
        lpoptions(content);
        break;
    case 'c':
        queueCache(content);
        break;
    case 'r':
        restoredChoices(content);
        break;
    default:
        break;
    }
    return 0;
}
