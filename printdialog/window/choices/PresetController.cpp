// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetController.h"

#include "ArrangementModel.h"
#include "ChoiceSteps.h"
#include "CustomChoice.h"
#include "DialogSession.h"
#include "JobTemplate.h"
#include "MessageBar.h"
#include "PresetBar.h"
#include "PresetName.h"
#include "PresetStore.h"
#include "PrinterDefaults.h"
#include "QueueSettings.h"
#include "StoredChoices.h"
#include "UsedChoices.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace printdialog {

PresetController::PresetController(PresetBar *bar, MessageBar *message, ChoiceSteps *steps,
                                   ArrangementModel *photos, QObject *parent)
    : QObject(parent)
    , bar_(bar)
    , message_(message)
    , steps_(steps)
    , photos_(photos)
{
    makeActions();
    // A preset holds the current photo's placement.
    for (const auto change : {&ArrangementModel::placementChanged, &ArrangementModel::selectionChanged})
        connect(photos_, change, this, &PresetController::update);
    update();
}

PresetController::~PresetController() = default;

void PresetController::setSession(DialogSession *session, const QString &builtInPreset)
{
    session_ = session;
    store_.reset();
    bar_->setNames({});
    bar_->setEnabled(session != nullptr);
    update();
    if (!session)
        return;
    const QString queue = session->printer().destination.queue;
    store_ = std::make_unique<PresetStore>(PresetStore::of(queue, session->printer().isBuiltIn));
    load();
    preset_ = session->printer().isBuiltIn ? builtInPreset : session->printer().destination.instance;
    open();
}

void PresetController::open()
{
    if (!openWith(preset_))
        openWithLastChoices();
}

bool PresetController::useAttributes(const IppAttributes &attributes, bool opensAnew)
{
    const QMap<QString, QString> before = openingChoices();
    session_->setAttributes(attributes);
    steps_->include();
    if (steps_->canRevert() || (!opensAnew && openingChoices() == before))
        return false;
    open();
    return true;
}

/// What open() chooses, as far as the printer has it.
QMap<QString, QString> PresetController::openingChoices() const
{
    const auto presets = store_->presets();
    const Preset *preset = presets ? PresetStore::findInstance(*presets, preset_) : nullptr;
    QMap<QString, QString> choices =
        preset ? choicesOfLp(*session_, preset->options) : printerDefaults(*session_);
    if (!preset)
        choices.insert(QueueSettings::load(session_->printer().destination.queue));
    choices = JobTemplate::choicesOf(choices);
    choices.removeIf([this](const auto &choice) {
        return choice.key() != QLatin1String(copiesOption) && !session_->options().hasOption(choice.key());
    });
    return choices;
}

void PresetController::update()
{
    revert_->setEnabled(steps_->canRevert());
    if (const QString preset = bar_->current(); !preset.isEmpty())
        bar_->setCurrent(preset, differsFromPreset());
}

/// Whether the preset exists and is now in use. Shows a message when a requested one is missing.
bool PresetController::openWith(const QString &instance)
{
    const auto presets = store_->presets();
    if (instance.isEmpty() || !presets) // the failure is already shown
        return false;
    const Preset *preset = PresetStore::findInstance(*presets, instance);
    if (preset)
        use(preset->name);
    else
        bar_->showError(PresetStore::missing(session_->printer().destination.queue, instance, *presets));
    return preset != nullptr;
}

/// What was used last, and the printer's defaults for the other options.
void PresetController::openWithLastChoices()
{
    const QMap<QString, QString> last = QueueSettings::load(session_->printer().destination.queue);
    QMap<QString, QString> defaults = printerDefaults(*session_);
    defaults.removeIf([&last](const auto &choice) { return last.contains(choice.key()); });
    const UsedChoices usedLast = useChoices(*session_, last);
    const UsedChoices used = useChoices(*session_, defaults);
    steps_->setCopies(usedLast.copies.value_or(used.copies.value_or(1)));
    // What the user has done with the photos stays, whatever the printer.
    if (usedLast.style && photos_->isAsOpened())
        photos_->open(*usedLast.style);
    sayLeftOut(leftOutLines(tr("Of the choices used last, some are left out:"), usedLast.leftOut) +
               leftOutOfDefaults(used.leftOut));
}

QString PresetController::keep(const QMap<QString, QString> &options)
{
    steps_->note(); // includes the replacements of dropped choices
    QMap<QString, QString> kept = withCopies(options);
    kept.remove(QStringLiteral("job-hold-until")); // the next job is not held without anybody's choice
    const QString queue = session_->printer().destination.queue;
    if (keepsOnlyOptions_) {
        QMap<QString, QString> last = QueueSettings::load(queue);
        const auto style = ArrangementStyle::takeFrom(last);
        [[maybe_unused]] const auto present = ArrangementStyle::takeFrom(kept);
        if (style)
            style->insertInto(kept);
        kept.remove(QLatin1String(copiesOption));
        if (last.contains(QLatin1String(copiesOption)))
            kept.insert(QLatin1String(copiesOption), last.value(QLatin1String(copiesOption)));
    }
    const auto failure = QueueSettings::save(queue, kept);
    return failure ? failure->text : QString();
}

QMap<QString, QString> PresetController::withCopies(QMap<QString, QString> options) const
{
    options.remove(JobTemplate::titleKey()); // the next job is of other photos
    options.removeIf([this](const auto &choice) {
        return isCustomChoice(*choice) && isSecret(session_->options().customParameters(choice.key()));
    });
    options.insert(QLatin1String(copiesOption), QString::number(steps_->copies()));
    if (!session_->printer().isRaw)
        photos_->style().insertInto(options);
    return options;
}

void PresetController::makeActions()
{
    connect(bar_, &PresetBar::chosen, this, &PresetController::use);
    connect(bar_, &PresetBar::addRequested, this, &PresetController::add);
    connect(bar_, &PresetBar::updateRequested, this, &PresetController::replace);
    connect(bar_, &PresetBar::renameRequested, this, &PresetController::rename);
    connect(bar_, &PresetBar::removeRequested, this, &PresetController::remove);
    connect(bar_, &PresetBar::aboutToChoose, this, [this] {
        if (store_)
            load();
    });
    bar_->menu()->addSeparator();
    revert_ = bar_->menu()->addAction(tr("Re&vert to How the Dialog Opened"), steps_, &ChoiceSteps::revert);
}

void PresetController::load()
{
    const auto presets = store_->presets();
    QList<PresetBar::Name> names;
    if (presets) {
        for (const Preset &preset : *presets)
            names += PresetBar::Name{preset.name, preset.isWritable};
    }
    const QString current = bar_->current();
    bar_->setNames(names);
    bar_->setCurrent(current, differsFromPreset());
    if (!presets)
        bar_->showError(presets.failure().text);
}

void PresetController::mark(const QString &name)
{
    steps_->markPreset();
    const auto presets = store_->presets();
    const Preset *preset = presets ? PresetStore::find(*presets, name) : nullptr;
    QMap<QString, QString> options = preset ? preset->options : QMap<QString, QString>();
    markedStyle_ = ArrangementStyle::takeFrom(options);
    bar_->setCurrent(name, false);
}

bool PresetController::differsFromPreset() const
{
    return steps_->differsFromPreset() || (markedStyle_ && photos_->style() != *markedStyle_);
}

void PresetController::use(const QString &name)
{
    Q_EMIT aboutToUse();
    if (name == PresetBar::defaultsName())
        sayLeftOut(leftOutOfDefaults(take(useDefaults(*session_), name)));
    else
        sayLeftOut(
            leftOutLines(tr("Of the preset \"%1\", some choices are left out:").arg(name), restore(name)));
}

/// Returns what is left out.
QStringList PresetController::restore(const QString &name)
{
    const auto presets = store_->presets();
    if (!presets)
        return {presets.failure().text};
    const Preset *preset = PresetStore::find(*presets, name);
    if (!preset) {
        load();
        bar_->showError(tr("The preset \"%1\" no longer exists.").arg(name));
        return {};
    }
    return take(usePreset(*session_, *preset), preset->name);
}

/// Returns what is left out.
QStringList PresetController::take(const UsedChoices &used, const QString &name)
{
    steps_->setCopies(used.copies.value_or(1));
    if (used.style)
        photos_->setStyle(*used.style);
    steps_->note();
    mark(name);
    return used.leftOut;
}

void PresetController::sayLeftOut(const QStringList &lines)
{
    if (!lines.isEmpty())
        message_->show(MessageBar::Kind::Warning, lines.join(u'\n'));
}

QStringList PresetController::leftOutLines(const QString &introduction, const QStringList &sentences)
{
    constexpr qsizetype most = 4;
    if (sentences.isEmpty())
        return {};
    QStringList lines = QStringList(introduction) + sentences.first(std::min(sentences.size(), most));
    if (sentences.size() > most)
        lines += tr("And %n more.", nullptr, static_cast<int>(sentences.size() - most));
    return lines;
}

QStringList PresetController::leftOutOfDefaults(const QStringList &sentences)
{
    return leftOutLines(tr("Of the printer's defaults, some are left out:"), sentences);
}

/// All choices of the job; nothing when they conflict, which is then shown.
std::optional<QMap<QString, QString>> PresetController::kept()
{
    const auto job = session_->jobOptions();
    if (!job) {
        Q_EMIT jobRefused();
        return std::nullopt;
    }
    if (!job->missing.isEmpty()) {
        bar_->showError(job->missing.join(u' '));
        return std::nullopt;
    }
    steps_->note(); // includes the replacements of dropped choices
    return withCopies(job->options);
}

/// What a printer with hundreds of options does by default need not be named: a preset's line has a limit. A
/// default that the server sets itself stays.
QMap<QString, QString> PresetController::withoutDefaults(QMap<QString, QString> choices) const
{
    choices.removeIf([this](const auto &choice) {
        const GuardedPanel *panel = session_->panelFor(choice.key());
        return panel && session_->isOwnPage(*panel) &&
               session_->options().defaultChoice(choice.key()) == *choice &&
               !session_->attributes().contains(choice.key() + QLatin1String("-default"));
    });
    return choices;
}

void PresetController::add(const QString &typed)
{
    const QString name = PresetName::cleaned(typed);
    const auto choices = kept();
    if (!choices)
        return;
    auto failure = store_->add(name, *choices);
    if (failure && failure->reason == SettingsFault::TooLong)
        failure = store_->add(name, withoutDefaults(*choices));
    if (failure) {
        bar_->showError(failure->text);
        return;
    }
    bar_->endEditing();
    load();
    mark(name);
}

void PresetController::replace(const QString &name)
{
    const auto choices = kept();
    if (!choices)
        return;
    auto failure = store_->update(name, *choices);
    if (failure && failure->reason == SettingsFault::TooLong)
        failure = store_->update(name, withoutDefaults(*choices));
    if (failure)
        bar_->showError(failure->text);
    else
        mark(name);
}

void PresetController::rename(const QString &name, const QString &typed)
{
    const QString newName = PresetName::cleaned(typed);
    if (const auto failure = store_->rename(name, newName)) {
        bar_->showError(failure->text);
        return;
    }
    bar_->endEditing();
    load();
    bar_->setCurrent(newName, differsFromPreset());
}

void PresetController::remove(const QString &name)
{
    if (const auto failure = store_->remove(name)) {
        bar_->showError(failure->text);
        return;
    }
    bar_->endEditing();
    load();
}

} // namespace printdialog
