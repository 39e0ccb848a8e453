// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceSteps.h"

#include "ControlWatcher.h"
#include "DialogSession.h"
#include "OptionPageView.h"
#include "PanelTabs.h"
#include "StoredChoices.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

#include <utility>

namespace printdialog {

namespace {

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

ChoiceSteps::ChoiceSteps(const Widgets &widgets, QObject *parent)
    : QObject(parent)
    , widgets_(widgets)
    , watcher_(new ControlWatcher(this))
    , history_(new ChoiceHistory([this](const ChoiceHistory::State &state) { make(state); },
                                 [this](const ArrangementModel::State &state) { makePhotos(state); }, this))
    , copies_(widgets.copies->value())
{
    connect(widgets.panels, &PanelTabs::viewMade, watcher_, [this](QWidget *view) {
        watcher_->watchView(view);
        if (auto *page = qobject_cast<OptionPageView *>(view))
            connect(page, &OptionPageView::rowMade, watcher_, &ControlWatcher::watchView);
    });
    connect(watcher_, &ControlWatcher::acted, this, &ChoiceSteps::finishAct);
    connect(watcher_, &ControlWatcher::typingFinished, this, [this] {
        if (session_)
            session_->finishTyping();
    });
    watcher_->watchField(widgets.copies);
    connect(widgets.copies, &QSpinBox::valueChanged, this, [this](int copies) {
        noteCopies(copies);
        watcher_->note(widgets_.copies);
    });
    connect(widgets.photos, &ArrangementModel::changed, history_,
            [this](const ArrangementModel::State &before) {
                history_->changePhotos(before, widgets_.photos->state());
            });
    // What is done with the same control is another act when it is done to others.
    connect(widgets.photos, &ArrangementModel::selectionChanged, watcher_, &ControlWatcher::endAct);
    const QKeySequence undoKey(Qt::CTRL | Qt::Key_Z);
    const QKeySequence redoKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    prepareTool(widgets.undo, QStringLiteral("edit-undo"), QStringLiteral("\u21b6"), tr("Undo"), undoKey);
    prepareTool(widgets.redo, QStringLiteral("edit-redo"), QStringLiteral("\u21b7"), tr("Redo"), redoKey);
    // Always enabled: even without a step, the key must not reach a text field's own undo.
    connect(new QShortcut(undoKey, widgets.window), &QShortcut::activated, history_, &ChoiceHistory::undo);
    connect(new QShortcut(redoKey, widgets.window), &QShortcut::activated, history_, &ChoiceHistory::redo);
    connect(widgets.undo, &QToolButton::clicked, history_, &ChoiceHistory::undo);
    connect(widgets.redo, &QToolButton::clicked, history_, &ChoiceHistory::redo);
    connect(history_, &ChoiceHistory::changed, this, &ChoiceSteps::updateButtons);
    connect(history_, &ChoiceHistory::changed, this, &ChoiceSteps::changed);
    updateButtons();
}

void ChoiceSteps::setSession(DialogSession *session)
{
    session_ = session;
    history_->start({});
    if (!session)
        return;
    connect(&session->chosen(), &ChosenOptions::changed, history_, &ChoiceHistory::change);
    setCopies(1);
}

void ChoiceSteps::start()
{
    history_->start(state());
}

void ChoiceSteps::include()
{
    history_->include(state());
}

void ChoiceSteps::setCopies(int copies)
{
    const QSignalBlocker blocker(widgets_.copies);
    widgets_.copies->setValue(copies);
    noteCopies(copies);
}

void ChoiceSteps::noteCopies(int copies)
{
    const int before = std::exchange(copies_, copies);
    if (before != copies)
        history_->change({QLatin1String(copiesOption), QString::number(before), QString::number(copies)});
}

void ChoiceSteps::endAct()
{
    watcher_->endAct();
}

void ChoiceSteps::watchField(QWidget *field)
{
    watcher_->watchField(field);
}

void ChoiceSteps::noteAct(QWidget *control)
{
    watcher_->note(control);
}

void ChoiceSteps::finishAct(QWidget *control, bool continues)
{
    if (GuardedPanel *panel = session_ ? widgets_.panels->panelOf(control) : nullptr)
        session_->adoptChoices(*panel);
    Q_EMIT acted(control, continues);
}

bool ChoiceSteps::note(bool continues)
{
    const bool hasChanges = history_->hasChanges();
    history_->note(continues);
    return hasChanges;
}

bool ChoiceSteps::canRevert() const
{
    return session_ && history_->canRevert();
}

void ChoiceSteps::revert()
{
    history_->revert();
}

void ChoiceSteps::markPreset()
{
    history_->mark(state());
}

ChoiceHistory::State ChoiceSteps::state() const
{
    ChoiceHistory::State state = session_->chosen().choices();
    state.insert(QLatin1String(copiesOption), QString::number(copies_));
    return state;
}

void ChoiceSteps::make(const ChoiceHistory::State &state)
{
    if (!session_)
        return;
    Q_EMIT aboutToMake();
    watcher_->endAct();
    if (const QString copies = state.value(QLatin1String(copiesOption)); !copies.isNull())
        setCopies(copies.toInt());
    session_->chooseTogether(state);
}

void ChoiceSteps::makePhotos(const ArrangementModel::State &state)
{
    Q_EMIT aboutToMake();
    watcher_->endAct();
    widgets_.photos->restore(state);
}

void ChoiceSteps::updateButtons()
{
    widgets_.undo->setEnabled(history_->canUndo());
    widgets_.redo->setEnabled(history_->canRedo());
}

} // namespace printdialog
