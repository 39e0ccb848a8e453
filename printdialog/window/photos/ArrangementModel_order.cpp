// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementModel.h"

#include <QtCore/QCollator>
#include <QtCore/QLocale>

#include <algorithm>

// The order of the photos.

namespace printdialog {

void ArrangementModel::moveSelected(int before)
{
    QList<int> order;
    order.reserve(count());
    const auto take = [this, &order](int from, int to, bool areSelected) {
        for (int i = from; i < to; ++i) {
            if (std::ranges::binary_search(state_.selection, i) == areSelected)
                order.append(i);
        }
    };
    take(0, before, false);
    take(0, count(), true);
    take(before, count(), false);
    reorder(order);
}

void ArrangementModel::stepSelected(int direction)
{
    QList<int> order = allIndexes();
    const auto isSelected = [this, &order](int place) {
        return std::ranges::binary_search(state_.selection, order.at(place));
    };
    // The photo in front makes room first; those at the very end stay.
    const int last = count() - 1;
    for (int i = 1; i <= last; ++i) {
        const int place = direction < 0 ? i : last - i;
        if (isSelected(place) && !isSelected(place + direction))
            order.swapItemsAt(place, place + direction);
    }
    reorder(order);
}

void ArrangementModel::sort(Order order)
{
    QList<int> indexes = allIndexes();
    if (order == Order::Name) {
        // The C locale knows no numbers.
        QCollator collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        QList<QString> names;
        for (const PlacedPhoto &placed : photos())
            names += placed.photo.fileName();
        std::ranges::stable_sort(indexes, [&](int one, int other) {
            const int result = collator.compare(names.at(one), names.at(other));
            return result != 0 ? result < 0 : photos().at(one).photo.page() < photos().at(other).photo.page();
        });
    } else if (order == Order::Date) {
        // What has no date of its own comes by the date of its file.
        std::ranges::stable_sort(indexes, {}, [this](int i) {
            const Photo &photo = photos().at(i).photo;
            return photo.taken().value_or(photo.modified());
        });
    } else {
        std::ranges::stable_sort(indexes, {},
                                 [this](int i) { return givenPlaces_.value(nameOf(photos().at(i))); });
    }
    reorder(indexes);
}

/// Puts the photos into the order of their present indexes; the same ones stay selected.
void ArrangementModel::reorder(const QList<int> &order)
{
    if (std::ranges::is_sorted(order))
        return;
    const State before = state_;
    state_.selection.clear();
    for (int i = 0; i < count(); ++i) {
        const int from = order.at(i);
        state_.arrangement.photos[i] = before.arrangement.photos.at(from);
        if (std::ranges::binary_search(before.selection, from))
            state_.selection.append(i);
        if (from == before.current)
            state_.current = i;
    }
    Q_EMIT changed(before);
    Q_EMIT photosChanged();
}

} // namespace printdialog
