// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceCallout.h"
#include "ChoiceController.h"
#include "DialogSession.h"
#include "MessageBar.h"
#include "PresetBar.h"
#include "PresetName.h"
#include "PresetStore.h"
#include "QueueSettings.h"
#include "StoredChoices.h"
#include "UsedChoices.h"

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSpinBox>

#include <algorithm>

namespace printdialog {

namespace {

/// A destination is a queue, or a queue and the user's instance of it, which is a preset.
QString queueOf(const PrinterDescription &printer)
{
    return printer.isBuiltIn ? printer.name : printer.name.section(u'/', 0, 0);
}

} // namespace

void ChoiceController::setSession(DialogSession *session, const QString &builtInPreset)
{
    callout_->dismiss();
    pending_.reset();
    session_ = session;
    store_.reset();
    widgets_.presets->setNames({});
    widgets_.presets->setEnabled(session != nullptr);
    history_->start({});
    if (!session)
        return;
    connect(session, &DialogSession::choiceRefused, this, [this](const Ruling &ruling) {
        if (!pending_)
            QTimer::singleShot(0, this, [this] { explainPending(nullptr); });
        pending_ = ruling;
    });
    setCopies(1);
    const QString queue = queueOf(session->printer());
    store_ = PresetStore::open(queue, session->printer().isBuiltIn);
    loadPresets();
    if (openWithPreset(session->printer().isBuiltIn ? builtInPreset
                                                    : session->printer().name.section(u'/', 1)))
        return;
    const UsedChoices last = useChoices(*session, QueueSettings::load(queue));
    setCopies(last.copies.value_or(1));
    sayLeftOut(tr("Of the choices used last, some are left out:"), last.leftOut);
}

/// Whether there is such a preset, in use now. Where one that was asked for is missing, the user is told.
bool ChoiceController::openWithPreset(const QString &instance)
{
    const auto presets = store_->presets();
    if (instance.isEmpty() || !presets) // the failure is shown
        return false;
    const Preset *preset = PresetStore::findInstance(*presets, instance);
    if (preset)
        usePreset(preset->name);
    else
        widgets_.presets->showError(PresetStore::missing(queueOf(session_->printer()), instance, *presets));
    return preset != nullptr;
}

QString ChoiceController::keep(const QMap<QString, QString> &options)
{
    callout_->dismiss(); // the choice that was refused is none of the job's
    noteStep(false);     // what took the place of a dropped choice
    QMap<QString, QString> choices = options;
    choices.insert(QLatin1String(copiesOption), QString::number(widgets_.copies->value()));
    const auto failure = QueueSettings::save(queueOf(session_->printer()), choices);
    return failure ? failure->text : QString();
}

void ChoiceController::makePresetActions()
{
    PresetBar *presets = widgets_.presets;
    connect(presets, &PresetBar::chosen, this, &ChoiceController::usePreset);
    connect(presets, &PresetBar::addRequested, this, &ChoiceController::addPreset);
    connect(presets, &PresetBar::updateRequested, this, &ChoiceController::updatePreset);
    connect(presets, &PresetBar::renameRequested, this, &ChoiceController::renamePreset);
    connect(presets, &PresetBar::removeRequested, this, &ChoiceController::removePreset);
    connect(presets, &PresetBar::aboutToChoose, this, [this] {
        if (store_)
            loadPresets();
    });
    QMenu *menu = presets->menu();
    menu->addSeparator();
    revert_ = menu->addAction(tr("Re&vert to How the Dialog Opened"), history_, &ChoiceHistory::revert);
}

void ChoiceController::loadPresets()
{
    const auto presets = store_->presets();
    QList<PresetBar::Name> names;
    if (presets) {
        for (const Preset &preset : *presets)
            names += PresetBar::Name{preset.name, preset.isWritable};
    }
    const QString current = widgets_.presets->current();
    widgets_.presets->setNames(names);
    widgets_.presets->setCurrent(current, history_->current() != presetState_);
    if (!presets)
        widgets_.presets->showError(presets.failure().text);
}

void ChoiceController::markPreset(const QString &name)
{
    presetState_ = state();
    widgets_.presets->setCurrent(name, false);
}

void ChoiceController::usePreset(const QString &name)
{
    callout_->dismiss();
    widgets_.message->clear();
    const QStringList leftOut = restorePreset(name);
    sayLeftOut(tr("Of the preset \"%1\", some choices are left out:").arg(name), leftOut);
}

/// Answers what is left out.
QStringList ChoiceController::restorePreset(const QString &name)
{
    const auto presets = store_->presets();
    if (!presets)
        return {presets.failure().text};
    const Preset *preset = PresetStore::find(*presets, name);
    if (!preset) {
        loadPresets();
        widgets_.presets->showError(tr("There is no preset \"%1\" any more.").arg(name));
        return {};
    }
    const UsedChoices used = printdialog::usePreset(*session_, *preset);
    setCopies(used.copies.value_or(1));
    noteStep(false);
    markPreset(preset->name);
    return used.leftOut;
}

void ChoiceController::sayLeftOut(const QString &introduction, const QStringList &sentences)
{
    constexpr qsizetype most = 4;
    if (sentences.isEmpty())
        return;
    QStringList lines = QStringList(introduction) + sentences.first(std::min(sentences.size(), most));
    if (sentences.size() > most)
        lines += tr("And %n more.", nullptr, static_cast<int>(sentences.size() - most));
    widgets_.message->show(MessageBar::Kind::Warning, lines.join(u'\n'));
}

/// The whole set of choices of a job; nothing when they do not go together, which the user is told.
std::optional<QMap<QString, QString>> ChoiceController::kept()
{
    const auto job = session_->jobOptions();
    if (!job) {
        explainJob();
        return std::nullopt;
    }
    noteStep(false); // what took the place of a dropped choice
    QMap<QString, QString> choices = job->options;
    choices.insert(QLatin1String(copiesOption), QString::number(widgets_.copies->value()));
    return choices;
}

void ChoiceController::addPreset(const QString &typed)
{
    const QString name = PresetName::cleaned(typed);
    const auto choices = kept();
    if (!choices)
        return;
    if (const auto failure = store_->add(name, *choices)) {
        widgets_.presets->showError(failure->text);
        return;
    }
    widgets_.presets->endEditing();
    loadPresets();
    markPreset(name);
}

void ChoiceController::updatePreset(const QString &name)
{
    const auto choices = kept();
    if (!choices)
        return;
    if (const auto failure = store_->update(name, *choices))
        widgets_.presets->showError(failure->text);
    else
        markPreset(name);
}

void ChoiceController::renamePreset(const QString &name, const QString &typed)
{
    const QString newName = PresetName::cleaned(typed);
    if (const auto failure = store_->rename(name, newName)) {
        widgets_.presets->showError(failure->text);
        return;
    }
    widgets_.presets->endEditing();
    loadPresets();
    widgets_.presets->setCurrent(newName, history_->current() != presetState_);
}

void ChoiceController::removePreset(const QString &name)
{
    if (const auto failure = store_->remove(name)) {
        widgets_.presets->showError(failure->text);
        return;
    }
    widgets_.presets->endEditing();
    loadPresets();
}

} // namespace printdialog
