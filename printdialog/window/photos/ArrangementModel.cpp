// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementModel.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace printdialog {

namespace {

bool isSame(const PlacedPhoto &one, const PlacedPhoto &other)
{
    return one.photo.path() == other.photo.path() && one.photo.page() == other.photo.page() &&
           one.placement == other.placement && one.copies == other.copies;
}

} // namespace

QList<int> ArrangementModel::allIndexes() const
{
    QList<int> indexes(count());
    std::iota(indexes.begin(), indexes.end(), 0);
    return indexes;
}

const PlacedPhoto *ArrangementModel::currentPhoto() const
{
    return state_.current < 0 ? nullptr : &photos().at(state_.current);
}

void ArrangementModel::start(const Arrangement &arrangement)
{
    opened_ = arrangement.photos;
    state_ = {arrangement, {}, -1, opened_.size(), true, state_.opening, state_.openings};
    selectSome();
    kept_ = arrangement;
    givenPlaces_.clear();
    notePlaces(0);
    Q_EMIT photosChanged();
}

void ArrangementModel::append(const QList<Photo> &photos)
{
    const int first = count();
    for (const Photo &photo : photos)
        opened_.append({photo, state_.opening.placement});
    appendOpened();
    kept_.photos += opened_.last(photos.size());
    notePlaces(first);
    Q_EMIT photosChanged();
}

void ArrangementModel::restore(const State &state)
{
    const State last = std::exchange(state_, state);
    if (state.openings != last.openings) {
        if (isAsOpened(state)) {
            state_.arrangement.setStyle(last.opening);
            state_.coming = last.opening.placement;
        }
        state_.opening = last.opening;
        state_.openings = last.openings;
    }
    appendOpened();
    Q_EMIT photosChanged();
}

void ArrangementModel::appendOpened()
{
    for (PlacedPhoto placed : opened_.sliced(state_.opened)) {
        placed.placement = state_.coming;
        state_.arrangement.photos.append(placed);
    }
    state_.opened = opened_.size();
    selectSome();
}

/// There is a current photo as long as there are photos: at first one that is printed.
void ArrangementModel::selectSome()
{
    if (state_.current >= 0 || count() == 0)
        return;
    state_.current = std::max(0, printedFrom(0));
    state_.selection = {state_.current};
}

// One pass beside the kept arrangement; a photo that was only removed does not count.
bool ArrangementModel::hasUnkeptWork() const
{
    const QList<PlacedPhoto> &kept = kept_.photos;
    if (count() < 2 || (isOneDocument() && isPlain()))
        return false;
    if (arrangement().layout != kept_.layout)
        return true;
    if (std::ranges::equal(photos(), kept, isSame))
        return false;
    QHash<Name, qsizetype> places;
    for (qsizetype i = 0; i < kept.size(); ++i)
        places.insert(nameOf(kept.at(i)), i);
    int added = 0;
    qsizetype last = -1;
    for (const PlacedPhoto &placed : photos()) {
        const qsizetype place = places.value(nameOf(placed), -1);
        if (place < 0) {
            if (++added > 1)
                return true;
        } else if (place < last || !isSame(placed, kept.at(place))) {
            return true;
        } else {
            last = place;
        }
    }
    return false;
}

void ArrangementModel::select(const QList<int> &indexes, int current)
{
    QList<int> sorted = indexes;
    std::ranges::sort(sorted);
    if (sorted == state_.selection && current == state_.current)
        return;
    state_.selection = sorted;
    state_.current = current;
    Q_EMIT selectionChanged();
}

void ArrangementModel::selectAll()
{
    if (count() > 0)
        select(allIndexes(), state_.current);
}

void ArrangementModel::add(const QList<Photo> &photos, bool isFirst)
{
    if (photos.isEmpty())
        return;
    const State before = state_;
    PlacedPhoto placed;
    placed.placement = currentPhoto() ? currentPhoto()->placement : state_.opening.placement;
    placed.placement.turns = 0;
    placed.placement.crop = PlacementChoice().crop;
    const int first = count();
    for (const Photo &photo : photos) {
        placed.photo = photo;
        state_.arrangement.photos.append(placed);
    }
    notePlaces(first);
    if (isFirst || state_.current < 0) {
        state_.selection = {first};
        state_.current = first;
    }
    Q_EMIT changed(before);
    Q_EMIT photosChanged();
}

void ArrangementModel::replace(const Arrangement &arrangement)
{
    const State before =
        std::exchange(state_, {arrangement, {}, -1, state_.opened, true, state_.opening, state_.openings});
    selectSome();
    notePlaces(0);
    Q_EMIT changed(before);
    Q_EMIT photosChanged();
}

void ArrangementModel::follow(const QList<PlacedPhoto> &photos)
{
    const State before = state_;
    const int first = count();
    state_.arrangement.photos += photos;
    selectSome();
    notePlaces(first);
    Q_EMIT changed(before);
    Q_EMIT photosChanged();
}

void ArrangementModel::remove(const QList<int> &indexes)
{
    if (indexes.isEmpty())
        return;
    const State before = state_;
    QList<PlacedPhoto> left;
    left.reserve(count());
    for (int i = 0; i < count(); ++i) {
        if (!std::ranges::binary_search(indexes, i))
            left.append(photos().at(i));
    }
    int next = indexes.constFirst();                          // the first photo behind those that go
    if (!std::ranges::binary_search(indexes, before.current)) // it stays
        next = before.current -
               static_cast<int>(std::ranges::lower_bound(indexes, before.current) - indexes.begin());
    state_.arrangement.photos = left;
    state_.current = std::min(next, count() - 1);
    state_.selection = state_.current < 0 ? QList<int>() : QList<int>{state_.current};
    Q_EMIT changed(before);
    Q_EMIT photosChanged();
}

void ArrangementModel::change(const QList<int> &indexes, const Edit &edit,
                              const std::optional<PlacementChoice> &coming)
{
    const State before = state_;
    bool isChanged = false;
    for (const int index : indexes) {
        PlacedPhoto placed = photos().at(index);
        edit(placed);
        if (isSame(placed, photos().at(index)))
            continue;
        state_.arrangement.photos[index] = placed;
        isChanged = true;
    }
    if (coming)
        state_.coming = *coming;
    if (!isChanged)
        return;
    Q_EMIT changed(before);
    Q_EMIT placementChanged();
}

void ArrangementModel::editCurrent(const Edit &edit)
{
    if (state_.current >= 0)
        change({state_.current}, edit);
}

void ArrangementModel::applyToAll()
{
    if (!currentPhoto())
        return;
    const PlacedPhoto like = *currentPhoto();
    change(
        allIndexes(),
        [&like](PlacedPhoto &placed) {
            const QPointF crop = placed.placement.crop;
            placed.placement = like.placement;
            placed.placement.crop = crop;
            placed.copies = like.copies;
        },
        style().placement);
}

void ArrangementModel::setLayout(const SheetLayout &layout)
{
    if (layout == state_.arrangement.layout)
        return;
    const State before = state_;
    state_.arrangement.layout = layout;
    Q_EMIT changed(before);
    Q_EMIT placementChanged();
}

ArrangementStyle ArrangementModel::style() const
{
    ArrangementStyle style{currentPhoto() ? currentPhoto()->placement : state_.opening.placement,
                           arrangement().layout};
    style.placement.crop = PlacementChoice().crop;
    return style;
}

void ArrangementModel::setStyle(const ArrangementStyle &style)
{
    const State before = state_;
    state_.arrangement.setStyle(style);
    state_.coming = style.placement;
    if (photos().isEmpty())
        state_.opening = style;
    if (std::ranges::equal(photos(), before.arrangement.photos, isSame) &&
        style.layout == before.arrangement.layout)
        return;
    Q_EMIT changed(before);
    Q_EMIT placementChanged();
}

void ArrangementModel::open(const ArrangementStyle &style)
{
    state_.opening = style;
    state_.coming = style.placement;
    for (PlacedPhoto &placed : opened_)
        placed.placement = style.placement;
    ++state_.openings;
    state_.isOfList = false;
    state_.arrangement.setStyle(style);
    kept_.setStyle(style); // the order, and what was added, stay unkept
    Q_EMIT placementChanged();
}

bool ArrangementModel::isAsOpened(const State &state)
{
    return !state.isOfList && state.arrangement.layout == state.opening.layout &&
           std::ranges::all_of(state.arrangement.photos, [&state](const PlacedPhoto &placed) {
               return placed.placement == state.opening.placement && placed.copies == 1;
           });
}

void ArrangementModel::accept(const QList<int> &indexes)
{
    for (const int index : indexes)
        state_.arrangement.photos[index].isAccepted = true;
}

void ArrangementModel::notePlaces(qsizetype from)
{
    for (qsizetype i = from; i < photos().size(); ++i) {
        const Name name = nameOf(photos().at(i));
        if (!givenPlaces_.contains(name))
            givenPlaces_.insert(name, static_cast<int>(givenPlaces_.size()));
    }
}

} // namespace printdialog
