// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"

#include "ChoiceCallout.h"
#include "ChoiceExplanation.h"
#include "ControlWatcher.h"
#include "DialogSession.h"
#include "MessageBar.h"
#include "PanelTabs.h"
#include "PresetBar.h"
#include "PresetStore.h"
#include "StoredChoices.h"

#include <QtGui/QAction>
#include <QtGui/QShortcut>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

#include <utility>

namespace printdialog {

namespace {

const QString pageSizeKey = QStringLiteral("PageSize");

/// As a button's text, in which an ampersand would underline the next letter.
QString forButton(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void prepareTool(QToolButton *tool, const QString &themeIcon, const QString &sign, const QString &name,
                 const QKeySequence &key)
{
    tool->setIcon(QIcon::fromTheme(themeIcon));
    if (tool->icon().isNull())
        tool->setText(sign);
    tool->setAccessibleName(name);
    tool->setToolTip(QStringLiteral("%1 (%2)").arg(name, key.toString(QKeySequence::NativeText)));
}

} // namespace

ChoiceController::ChoiceController(const ChoiceWidgets &widgets, QObject *parent)
    : QObject(parent)
    , widgets_(widgets)
    , watcher_(new ControlWatcher(this))
    , history_(new ChoiceHistory([this](const ChoiceHistory::State &state) { return make(state); }, this))
    , callout_(new ChoiceCallout(widgets.window))
{
    connect(widgets.panels, &PanelTabs::viewMade, watcher_, &ControlWatcher::watchView);
    connect(widgets.panels, &PanelTabs::currentChanged, callout_, &ChoiceCallout::dismiss);
    connect(watcher_, &ControlWatcher::acted, this, &ChoiceController::noteAct);
    connect(watcher_, &ControlWatcher::typingFinished, this, [this] {
        if (session_)
            session_->finishTyping();
    });
    connect(callout_, &ChoiceCallout::offerTaken, this, &ChoiceController::takeOffer);
    watcher_->watchField(widgets.copies);
    connect(widgets.copies, &QSpinBox::valueChanged, watcher_, [this] { watcher_->note(widgets_.copies); });
    const QKeySequence undoKey(Qt::CTRL | Qt::Key_Z);
    const QKeySequence redoKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    prepareTool(widgets.undo, QStringLiteral("edit-undo"), QStringLiteral("\u21b6"), tr("Undo"), undoKey);
    prepareTool(widgets.redo, QStringLiteral("edit-redo"), QStringLiteral("\u21b7"), tr("Redo"), redoKey);
    // Always enabled: without any step the key must not reach a field's own undo.
    connect(new QShortcut(undoKey, widgets.window), &QShortcut::activated, history_, &ChoiceHistory::undo);
    connect(new QShortcut(redoKey, widgets.window), &QShortcut::activated, history_, &ChoiceHistory::redo);
    connect(widgets.undo, &QToolButton::clicked, history_, &ChoiceHistory::undo);
    connect(widgets.redo, &QToolButton::clicked, history_, &ChoiceHistory::redo);
    connect(history_, &ChoiceHistory::changed, this, &ChoiceController::updateHistory);
    connect(history_, &ChoiceHistory::changed, this, &ChoiceController::stepsChanged);
    makePresetActions();
    updateHistory();
}

ChoiceController::~ChoiceController() = default;

void ChoiceController::start()
{
    history_->start(state());
}

QString ChoiceController::explanation() const
{
    return callout_->text();
}

// Refusals

void ChoiceController::choosePageSize(const QString &pageSize)
{
    if (!session_)
        return;
    watcher_->endAct();
    const Ruling ruling = session_->choose(pageSizeKey, pageSize);
    if (ruling.verdict != Verdict::Accepted)
        explain(ruling, widgets_.pageSize);
    else
        noteAct(widgets_.pageSize, false);
}

// The refusal comes while the panel deals with the control; which one it was is known when it has done so.
void ChoiceController::explainPending(QWidget *control)
{
    const auto ruling = std::exchange(pending_, std::nullopt);
    if (!ruling)
        return;
    QWidget *focus = widgets_.window->focusWidget();
    if (!control && focus && widgets_.panels->isAncestorOf(focus))
        control = focus;
    explain(*ruling, control);
}

void ChoiceController::explain(const Ruling &ruling, QWidget *control)
{
    explained_ = ruling;
    const QString text = ChoiceExplanation(session_->ppd()).refusal(ruling);
    const QString offer = offerText(session_->changesThatAllow(ruling));
    widgets_.message->clear();
    callout_->dismiss();
    if (control && control->isVisible()) {
        QWidget *area =
            widgets_.panels->isAncestorOf(control) ? widgets_.panels->currentWidget() : widgets_.window;
        callout_->show(control, area, text, offer);
    } else if (offer.isEmpty()) {
        widgets_.message->show(MessageBar::Kind::Warning, text);
    } else {
        widgets_.message->showWithAction(MessageBar::Kind::Warning, text, offer, [this] { takeOffer(); });
    }
}

QString ChoiceController::offerText(const QList<OptionChoice> &changes) const
{
    if (changes.isEmpty())
        return {};
    return tr("Als&o change %1").arg(forButton(ChoiceExplanation(session_->ppd()).changes(changes)));
}

void ChoiceController::takeOffer()
{
    const QList<OptionChoice> changes = session_->changesThatAllow(explained_);
    callout_->dismiss();
    widgets_.message->clear();
    if (changes.isEmpty()) // no longer: something else was chosen since
        return;
    QMap<QString, QString> together = {{explained_.key, explained_.choice}};
    for (const OptionChoice &change : changes)
        together.insert(change.option, change.choice);
    session_->chooseTogether(together);
    noteStep(false);
}

void ChoiceController::explainJob()
{
    callout_->dismiss();
    Ruling refusal = session_->jobRefusal();
    QList<OptionChoice> changes = session_->changesThatAllow(refusal);
    // Without a way to what was chosen last there may be one to what was chosen before.
    for (qsizetype i = 0; changes.isEmpty() && i < session_->jobRefusal().others.size(); ++i) {
        refusal = session_->jobRefusal();
        const OptionChoice other = refusal.others.at(i);
        refusal.others[i] = {refusal.key, refusal.choice};
        refusal.key = other.option;
        refusal.choice = other.choice;
        changes = session_->changesThatAllow(refusal);
    }
    if (changes.isEmpty())
        refusal = session_->jobRefusal();
    const QString text = ChoiceExplanation(session_->ppd()).refusal(refusal);
    if (changes.isEmpty()) {
        widgets_.message->show(MessageBar::Kind::Warning, text);
        return;
    }
    explained_ = refusal;
    const QString changed = ChoiceExplanation(session_->ppd()).changes(changes);
    widgets_.message->showWithAction(MessageBar::Kind::Warning, text,
                                     tr("Chan&ge %1").arg(forButton(changed)), [this] { takeOffer(); });
}

// Steps

void ChoiceController::noteAct(QWidget *control, bool goesOn)
{
    if (!session_)
        return;
    if (pending_) {
        explainPending(control);
        // Part of what was asked for may have been done: a button for all defaults makes many choices.
        history_->note(state(), goesOn);
        return;
    }
    noteStep(goesOn);
}

void ChoiceController::noteStep(bool goesOn)
{
    if (!session_)
        return;
    const ChoiceHistory::State now = state();
    if (now == history_->current())
        return;
    callout_->dismiss();
    for (auto entry = now.cbegin(); entry != now.cend(); ++entry) {
        if (history_->current().value(entry.key()) != *entry)
            session_->noteChosen(entry.key());
    }
    history_->note(now, goesOn);
}

// While a number is being typed, the choice before it counts.
ChoiceHistory::State ChoiceController::state()
{
    ChoiceHistory::State state = history_->current();
    state.insert(session_->choices());
    state.insert(QLatin1String(copiesOption), QString::number(widgets_.copies->value()));
    return state;
}

ChoiceHistory::State ChoiceController::make(const ChoiceHistory::State &wanted)
{
    if (!session_)
        return wanted;
    callout_->dismiss();
    widgets_.message->clear();
    watcher_->endAct();
    setCopies(wanted.value(QLatin1String(copiesOption), QStringLiteral("1")).toInt());
    session_->chooseTogether(wanted);
    return state();
}

void ChoiceController::setCopies(int copies)
{
    const QSignalBlocker blocker(widgets_.copies);
    widgets_.copies->setValue(copies);
}

void ChoiceController::updateHistory()
{
    widgets_.undo->setEnabled(session_ && history_->canUndo());
    widgets_.redo->setEnabled(session_ && history_->canRedo());
    revert_->setEnabled(session_ && history_->canRevert());
    const QString preset = widgets_.presets->current();
    if (!preset.isEmpty())
        widgets_.presets->setCurrent(preset, history_->current() != presetState_);
}

} // namespace printdialog
