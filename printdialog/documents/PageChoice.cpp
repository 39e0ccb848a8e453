// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageChoice.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>

namespace printdialog {

namespace {

/// Nothing when it is too large.
std::optional<int> numberOf(const QString &digits, int missing)
{
    if (digits.isEmpty())
        return missing;
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    return isNumber && number <= PageRanges::largestNumber ? std::optional(number) : std::nullopt;
}

std::optional<PageRanges::Range> rangeOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]*)\\s*([-\u2013]?)\\s*([0-9]*)$"));
    const auto match = form.match(text);
    const QString before = match.captured(1);
    const QString after = match.captured(3);
    const bool isSingle = match.captured(2).isEmpty();
    if (!match.hasMatch() || (before.isEmpty() && after.isEmpty()) || (isSingle && !after.isEmpty()))
        return std::nullopt;
    const auto first = numberOf(before, 1);
    const auto last = isSingle ? first : numberOf(after, PageRanges::largestNumber);
    if (!first || !last)
        return std::nullopt;
    return PageRanges::Range{*first, *last};
}

} // namespace

std::optional<PageRanges> PageRanges::fromText(const QString &text)
{
    QList<Range> ranges;
    const QStringList parts = text.split(u',');
    for (const QString &part : parts) {
        const auto range = rangeOf(part.trimmed());
        if (!range)
            return std::nullopt;
        ranges += *range;
    }
    return of(ranges);
}

std::optional<PageRanges> PageRanges::of(const QList<Range> &ranges)
{
    if (ranges.isEmpty() || ranges.size() > mostRanges)
        return std::nullopt;
    QList<Range> sorted = ranges;
    std::ranges::sort(sorted, {}, &Range::first);
    PageRanges joined;
    for (const Range &range : std::as_const(sorted)) {
        if (range.first < 1 || range.last < range.first || range.last > largestNumber)
            return std::nullopt;
        if (joined.ranges_.isEmpty() || joined.ranges_.constLast().last < range.first - 1)
            joined.ranges_ += range;
        else
            joined.ranges_.last().last = std::max(joined.ranges_.constLast().last, range.last);
    }
    return joined;
}

QString PageRanges::toText() const
{
    QStringList texts;
    for (const Range &range : ranges_) {
        const QString first = QString::number(range.first);
        if (range.last == largestNumber)
            texts += first + u'-';
        else
            texts += range.last == range.first ? first : first + u'-' + QString::number(range.last);
    }
    return texts.join(u',');
}

bool PageRanges::contains(int number) const
{
    return std::ranges::any_of(
        ranges_, [number](const Range &range) { return range.first <= number && number <= range.last; });
}

bool PageChoice::contains(int number) const
{
    if (set != Set::All && (set == Set::Odd) != (number % 2 != 0))
        return false;
    return which == Which::All || which == Which::Selected || ranges.contains(number);
}

QString pageSetWord(PageChoice::Set set)
{
    return set == PageChoice::Set::All   ? QStringLiteral("all")
           : set == PageChoice::Set::Odd ? QStringLiteral("odd")
                                         : QStringLiteral("even");
}

std::optional<PageChoice::Set> pageSetFromWord(const QString &word)
{
    for (const auto set : {PageChoice::Set::All, PageChoice::Set::Odd, PageChoice::Set::Even}) {
        if (word == pageSetWord(set))
            return set;
    }
    return std::nullopt;
}

} // namespace printdialog
