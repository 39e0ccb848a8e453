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
    Step(ChoiceHistory &history, Changes changes, std::optional<PhotosChange> photos, int act)
        : history_(history)
        , changes_(std::move(changes))
        , photos_(std::move(photos))
        , act_(act)
    {
    }

    int id() const override { return act_; }
    const std::optional<PhotosChange> &photos() const { return photos_; }
    void undo() override { history_.make(sides(&Change::before), photos_ ? &photos_->before : nullptr); }
    void redo() override
    {
        // QUndoStack::push() calls redo(), but the change is already made by then.
        if (std::exchange(isDone_, true))
            history_.make(sides(&Change::after), photos_ ? &photos_->after : nullptr);
    }
    bool mergeWith(const QUndoCommand *next) override
    {
        const auto *more = static_cast<const Step *>(next);
        for (auto change = more->changes_.cbegin(); change != more->changes_.cend(); ++change)
            merge(changes_, change.key(), *change);
        if (photos_ && more->photos_)
            photos_->after = more->photos_->after;
        else if (more->photos_)
            photos_ = more->photos_;
        setObsolete(changes_.isEmpty() && !photos_);
        return true;
    }

private:
    State sides(QString Change::*side) const
    {
        State state;
        for (auto change = changes_.cbegin(); change != changes_.cend(); ++change) {
            if (!((*change).*side).isNull())
                state.insert(change.key(), (*change).*side);
        }
        return state;
    }

    ChoiceHistory &history_;
    Changes changes_;
    std::optional<PhotosChange> photos_;
    int act_;
    bool isDone_ = false;
};

void ChoiceHistory::Baseline::start(const State &from)
{
    state = from;
    differing.clear();
}

void ChoiceHistory::Baseline::include(const State &added)
{
    for (auto choice = added.cbegin(); choice != added.cend(); ++choice) {
        if (!state.contains(choice.key()))
            state.insert(choice.key(), *choice);
    }
}

void ChoiceHistory::Baseline::compare(const QString &key, const QString &choice)
{
    if (state.value(key) == choice)
        differing.remove(key);
    else
        differing.insert(key);
}

ChoiceHistory::ChoiceHistory(Maker maker, PhotosMaker photosMaker, QObject *parent)
    : QObject(parent)
    , maker_(std::move(maker))
    , photosMaker_(std::move(photosMaker))
    , steps_(new QUndoStack(this))
{
    steps_->setUndoLimit(mostSteps);
}

void ChoiceHistory::start(const State &state)
{
    QList<PhotosChange> kept;
    for (int i = 0; i < steps_->index(); ++i) {
        if (const auto &photos = static_cast<const Step *>(steps_->command(i))->photos())
            kept.append(*photos);
    }
    steps_->clear();
    pending_.clear();
    opening_.start(state);
    for (const PhotosChange &photos : std::as_const(kept))
        push({}, photos, ++act_);
    ++act_;
    Q_EMIT changed();
}

void ChoiceHistory::include(const State &state)
{
    opening_.include(state);
    mark_.include(state);
}

void ChoiceHistory::change(const ChoiceChange &change)
{
    opening_.compare(change.key, change.after.value_or(QString()));
    mark_.compare(change.key, change.after.value_or(QString()));
    if (!isMaking_)
        merge(pending_, change.key, {change.before.value_or(QString()), change.after.value_or(QString())});
}

void ChoiceHistory::changePhotos(const ArrangementModel::State &before, const ArrangementModel::State &after)
{
    if (!isMaking_)
        pendingPhotos_ = PhotosChange{pendingPhotos_ ? pendingPhotos_->before : before, after};
}

void ChoiceHistory::merge(Changes &changes, const QString &key, const Change &change)
{
    const QString before = changes.value(key, change).before;
    if (before == change.after)
        changes.remove(key);
    else
        changes.insert(key, {before, change.after});
}

void ChoiceHistory::note(bool continues)
{
    if (!continues)
        ++act_;
    if (!hasChanges())
        return;
    push(std::exchange(pending_, {}), std::exchange(pendingPhotos_, {}), act_);
    Q_EMIT changed();
}

void ChoiceHistory::push(const Changes &changes, const std::optional<PhotosChange> &photos, int act)
{
    steps_->push(new Step(*this, changes, photos, act));
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
    note(false); // a change that no act was noted for is a step, too
    ++act_;
    steps_->undo();
    Q_EMIT changed();
}

void ChoiceHistory::redo()
{
    note(false);
    ++act_;
    steps_->redo();
    Q_EMIT changed();
}

void ChoiceHistory::revert()
{
    State state;
    for (const QString &key : std::as_const(opening_.differing)) {
        if (const QString choice = opening_.state.value(key); !choice.isNull())
            state.insert(key, choice);
    }
    if (state.isEmpty())
        return;
    maker_(state);
    note(false);
}

void ChoiceHistory::make(const State &state, const ArrangementModel::State *photos)
{
    isMaking_ = true;
    if (photos)
        photosMaker_(*photos);
    if (!photos || !state.isEmpty())
        maker_(state);
    isMaking_ = false;
}

} // namespace printdialog
