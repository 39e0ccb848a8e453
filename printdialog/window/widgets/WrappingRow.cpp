// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WrappingRow.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <numeric>

namespace printdialog {

namespace {

bool expands(const QLayoutItem *item)
{
    return item->expandingDirections().testFlag(Qt::Horizontal);
}

/// Whether the item takes no room. A spacer is never hidden.
bool isHidden(QLayoutItem *item)
{
    return item->isEmpty() && !item->spacerItem();
}

/// The width to lay the item out by. One that expands counts with its minimum: it gets the rest of its line.
int widthOf(const QLayoutItem *item)
{
    return expands(item) ? item->minimumSize().width() : item->sizeHint().width();
}

} // namespace

WrappingRow::WrappingRow(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

// A nested layout removes itself from its parent when it is deleted.
WrappingRow::~WrappingRow()
{
    while (const QLayoutItem *item = WrappingRow::takeAt(0))
        delete item;
}

void WrappingRow::addItem(QLayoutItem *item)
{
    if (QLayout *row = item->layout())
        addChildLayout(row);
    items_.emplace_back(item);
    invalidate();
}

int WrappingRow::count() const
{
    return static_cast<int>(items_.size());
}

QLayoutItem *WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem *WrappingRow::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    QLayoutItem *item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

int WrappingRow::gap() const
{
    const QWidget *widget = parentWidget();
    return spacing() >= 0 || !widget
               ? std::max(spacing(), 0)
               : widget->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, widget);
}

QList<WrappingRow::Line> WrappingRow::linesFor(int width) const
{
    QList<Line> lines;
    int used = 0;
    for (const auto &item : items_) {
        if (isHidden(item.get()))
            continue;
        used += gap() + widthOf(item.get());
        if (lines.isEmpty() || used > width) {
            lines.append(Line());
            used = widthOf(item.get());
        }
        lines.last().append(item.get());
    }
    return lines;
}

QList<int> WrappingRow::widthsOf(const Line &line, int width) const
{
    QList<int> widths;
    for (const QLayoutItem *item : line)
        widths.append(std::min(widthOf(item), width));
    int left = width - gap() * (static_cast<int>(line.size()) - 1) -
               std::accumulate(widths.cbegin(), widths.cend(), 0);
    auto eager = static_cast<int>(std::count_if(line.cbegin(), line.cend(), expands));
    for (qsizetype i = 0; i < line.size() && eager > 0; ++i) {
        if (!expands(line.at(i)))
            continue;
        widths[i] += left / eager;
        left -= left / eager;
        --eager;
    }
    return widths;
}

int WrappingRow::heightOf(const Line &line, int width) const
{
    const QList<int> widths = widthsOf(line, width);
    int height = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QLayoutItem *item = line.at(i);
        height = std::max(height, item->hasHeightForWidth() ? item->heightForWidth(widths.at(i))
                                                            : item->sizeHint().height());
    }
    return height;
}

int WrappingRow::heightForWidth(int width) const
{
    int height = 0;
    for (const Line &line : linesFor(width))
        height += (height > 0 ? gap() : 0) + heightOf(line, width);
    return height;
}

QSize WrappingRow::sizeHint() const
{
    int width = 0;
    for (const auto &item : items_) {
        if (!isHidden(item.get()))
            width += (width > 0 ? gap() : 0) + item->sizeHint().width();
    }
    return {width, heightForWidth(width)};
}

QSize WrappingRow::minimumSize() const
{
    QSize size;
    for (const auto &item : items_) {
        if (!isHidden(item.get()))
            size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void WrappingRow::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int top = rect.top();
    for (const Line &line : linesFor(rect.width())) {
        const QList<int> widths = widthsOf(line, rect.width());
        const int height = heightOf(line, rect.width());
        int left = rect.right() + 1 - gap() * (static_cast<int>(line.size()) - 1) -
                   std::accumulate(widths.cbegin(), widths.cend(), 0);
        for (qsizetype i = 0; i < line.size(); ++i) {
            const QRect place(left, top, widths.at(i), height);
            line.at(i)->setGeometry(QStyle::visualRect(direction, rect, place));
            left += widths.at(i) + gap();
        }
        top += height + gap();
    }
}

} // namespace printdialog
