// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementModel.h"

#include <QtCore/QSet>

#include <algorithm>
#include <utility>

// Pages of documents.

namespace printdialog {

QList<int> ArrangementModel::scope() const
{
    if (!arePagesTogether_)
        return state_.selection;
    QSet<FileIdentity> documents;
    for (const int index : state_.selection) {
        if (photos().at(index).photo.document())
            documents.insert(photos().at(index).photo.identity());
    }
    QList<int> indexes;
    for (int i = 0; i < count(); ++i) {
        const Photo &photo = photos().at(i).photo;
        if (std::ranges::binary_search(state_.selection, i) ||
            (photo.document() && documents.contains(photo.identity())))
            indexes += i;
    }
    return indexes;
}

bool ArrangementModel::isOneDocument() const
{
    const PlacedPhoto *first = currentPhoto();
    return first && first->photo.document() &&
           std::ranges::all_of(photos(), [first](const PlacedPhoto &placed) {
               return placed.photo.document() && placed.photo.identity() == first->photo.identity();
           });
}

/// Whether the pages of a document are in their order, and all alike: opening it again makes the same.
bool ArrangementModel::isPlain() const
{
    int last = -1;
    return std::ranges::all_of(photos(), [&](const PlacedPhoto &placed) {
        const int before = std::exchange(last, placed.photo.page());
        return before < last && placed.placement == currentPhoto()->placement &&
               placed.copies == currentPhoto()->copies;
    });
}

void ArrangementModel::setPages(const PageChoice &pages)
{
    if (pages == arrangement().pages)
        return;
    const State before = state_;
    state_.arrangement.pages = pages;
    const int shown = printedFrom(state_.current);
    if (shown >= 0 && shown != state_.current) {
        state_.current = shown;
        state_.selection = {shown};
    }
    Q_EMIT changed(before);
    if (state_.current == before.current)
        Q_EMIT placementChanged();
    else
        Q_EMIT photosChanged();
}

/// The first index from there on, or else from the beginning, whose photo is printed; -1 without one.
int ArrangementModel::printedFrom(int index) const
{
    for (int step = 0; step < count(); ++step) {
        const int candidate = (index + step) % count();
        if (isPrinted(photos().at(candidate)))
            return candidate;
    }
    return -1;
}

bool ArrangementModel::isPrinted(const PlacedPhoto &placed) const
{
    return !placed.photo.document() || arrangement().pages.contains(placed.photo.page() + 1);
}

} // namespace printdialog
