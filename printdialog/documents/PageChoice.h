// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// Pages by their numbers, from 1 on, as people write them: "1-3,7,12-". A value; the default has none.
class PageRanges
{
public:
    /// Of one range; the last page is at least the first.
    struct Range
    {
        int first;
        int last; ///< largestNumber: to the end.

        bool operator==(const Range &) const = default;
    };

    static constexpr int largestNumber = 1'000'000;
    static constexpr qsizetype mostRanges = 1000;

    /// Ranges in any order, with spaces, and "–" for "-"; a number left out is the first or the last page.
    /// Nothing for any other text, for the number 0 and for "3-1".
    static std::optional<PageRanges> fromText(const QString &text);
    /// The ranges, which may overlap and touch. Nothing when one of them is impossible.
    static std::optional<PageRanges> of(const QList<Range> &ranges);

    /// Ascending, and apart from each other (RFC 8011, 5.2.7).
    const QList<Range> &ranges() const { return ranges_; }
    /// Such as "1-3,7,12-"; read by fromText() and by lp(1).
    QString toText() const;
    bool contains(int number) const;
    bool isEmpty() const { return ranges_.isEmpty(); }

    bool operator==(const PageRanges &) const = default;

private:
    QList<Range> ranges_;
};

/// Which pages of the documents are printed, and in which order. A value; the default is all of them. It
/// holds for each document of a job by its own numbers.
struct PageChoice
{
    enum class Which {
        All,
        Current,  ///< The one that was shown when it was chosen; its number is the ranges'.
        Selected, ///< What is selected in the program that prints; only it knows that.
        Ranges,
    };
    enum class Set { All, Odd, Even };

    Which which = Which::All;
    PageRanges ranges = {};  ///< With Which::Ranges and Which::Current.
    Set set = Set::All;      ///< Only pages with such numbers.
    bool isReversed = false; ///< The last sheet is printed first.

    /// Whether the page of this number, from 1 on, is printed. What only the program knows, counts as all.
    bool contains(int number) const;

    bool operator==(const PageChoice &) const = default;
};

/// "all", "odd" or "even", for scripts and files.
QString pageSetWord(PageChoice::Set set);
std::optional<PageChoice::Set> pageSetFromWord(const QString &word);

} // namespace printdialog
