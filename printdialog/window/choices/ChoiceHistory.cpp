// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceHistory.h"

#include <QtGui/QUndoStack>

#include <utility>

namespace printdialog {

namespace {

constexpr int mostSteps = 500;

} // namespace

class ChoiceHistory::Step : public QUndoCommand
{
public:
    Step(ChoiceHistory &history, State before, State after, int act)
        : history_(history)
        , before_(std::move(before))
        , after_(std::move(after))
        , act_(act)
    {
    }

    int id() const override { return act_; }
    void undo() override { history_.make(before_); }
    void redo() override
    {
        // Pushed on the stack when it is done already.
        if (std::exchange(isDone_, true))
            history_.make(after_);
    }
    bool mergeWith(const QUndoCommand *next) override
    {
        after_ = static_cast<const Step *>(next)->after_;
        setObsolete(after_ == before_);
        return true;
    }

private:
    ChoiceHistory &history_;
    State before_;
    State after_;
    int act_;
    bool isDone_ = false;
};

ChoiceHistory::ChoiceHistory(Maker maker, QObject *parent)
    : QObject(parent)
    , maker_(std::move(maker))
    , steps_(new QUndoStack(this))
{
    steps_->setUndoLimit(mostSteps);
}

void ChoiceHistory::start(const State &state)
{
    steps_->clear();
    opening_ = state;
    current_ = state;
    ++act_;
    Q_EMIT changed();
}

void ChoiceHistory::note(const State &state, bool goesOn)
{
    if (!goesOn)
        ++act_;
    if (state == current_)
        return;
    const State before = std::exchange(current_, state);
    steps_->push(new Step(*this, before, state, act_));
    Q_EMIT changed();
}

bool ChoiceHistory::canUndo() const
{
    return steps_->canUndo();
}

bool ChoiceHistory::canRedo() const
{
    return steps_->canRedo();
}

void ChoiceHistory::undo()
{
    ++act_;
    steps_->undo();
    Q_EMIT changed();
}

void ChoiceHistory::redo()
{
    ++act_;
    steps_->redo();
    Q_EMIT changed();
}

void ChoiceHistory::revert()
{
    if (canRevert())
        note(maker_(opening_), false);
}

void ChoiceHistory::make(const State &state)
{
    current_ = maker_(state);
}

} // namespace printdialog
