// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetLayout.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

struct CaptionWord
{
    Caption caption;
    const char *word;
};

constexpr std::array captionWords = {CaptionWord{Caption::None, "none"},
                                     CaptionWord{Caption::FileName, "name"},
                                     CaptionWord{Caption::Date, "date"}, CaptionWord{Caption::Both, "both"}};

const QLatin1String gapWord("gap=");
const QLatin1String captionWord("caption=");

/// The kind with its numbers; nothing for any other word.
std::optional<SheetLayout> kindFromWord(const QString &word)
{
    using Kind = SheetLayout::Kind;
    static const QRegularExpression kind(
        QStringLiteral("\\A(?:(single)|(fit)|(?:(contact)(?::(?=[0-9]))?)?(?:([0-9]{1,2})x([0-9]{1,2}))?"
                       "|(strips)(?::([0-9]))?|pages:([0-9]{1,2})|(booklet))\\z"));
    const QRegularExpressionMatch match = kind.match(word);
    if (!match.hasMatch() || word.isEmpty())
        return std::nullopt;
    if (match.hasCaptured(1))
        return SheetLayout();
    if (match.hasCaptured(2))
        return SheetLayout::usual(Kind::ManyOfSize);
    if (match.hasCaptured(6)) {
        SheetLayout layout = SheetLayout::usual(Kind::Strips);
        layout.stripPhotos = match.hasCaptured(7) ? match.captured(7).toInt() : layout.stripPhotos;
        return layout;
    }
    if (match.hasCaptured(8)) {
        SheetLayout layout = SheetLayout::usual(Kind::Pages);
        layout.pagesPerSheet = match.captured(8).toInt();
        return layout;
    }
    if (match.hasCaptured(9))
        return SheetLayout::usual(Kind::Booklet);
    SheetLayout layout = SheetLayout::usual(match.hasCaptured(3) ? Kind::Contact : Kind::Grid);
    if (match.hasCaptured(4)) {
        layout.rows = match.captured(4).toInt();
        layout.columns = match.captured(5).toInt();
    }
    return layout;
}

bool isPossible(const SheetLayout &layout)
{
    const auto isCount = [](int number) {
        return number >= 1 && number <= SheetLayout::mostRows;
    };
    return isCount(layout.rows) && isCount(layout.columns) &&
           layout.stripPhotos >= SheetLayout::leastStripPhotos &&
           layout.stripPhotos <= SheetLayout::mostStripPhotos &&
           std::ranges::find(SheetLayout::pagesPerSheetChoices, layout.pagesPerSheet) !=
               SheetLayout::pagesPerSheetChoices.end() &&
           layout.gap >= 0 && layout.gap <= SheetLayout::widestGap;
}

bool readWord(const QString &word, SheetLayout &layout)
{
    if (word == QLatin1String("repeat") || word == QLatin1String("follow")) {
        layout.isRepeated = word == QLatin1String("repeat");
        return true;
    }
    if (word == QLatin1String("marks") || word == QLatin1String("nomarks")) {
        layout.hasCutMarks = word == QLatin1String("marks");
        return true;
    }
    if (word.startsWith(gapWord)) {
        const auto gap = lengthFromText(word.mid(gapWord.size()));
        layout.gap = gap.value_or(layout.gap);
        return gap.has_value();
    }
    if (word.startsWith(captionWord)) {
        const auto caption = captionFromText(word.mid(captionWord.size()));
        layout.caption = caption.value_or(layout.caption);
        return caption.has_value();
    }
    return false;
}

QString wordOf(const SheetLayout &layout)
{
    using Kind = SheetLayout::Kind;
    const QString grid = QStringLiteral("%1x%2").arg(layout.rows).arg(layout.columns);
    switch (layout.kind) {
    case Kind::Single:
        break;
    case Kind::Grid:
        return grid;
    case Kind::ManyOfSize:
        return QStringLiteral("fit");
    case Kind::Contact:
        return QStringLiteral("contact:") + grid;
    case Kind::Strips:
        return QStringLiteral("strips:%1").arg(layout.stripPhotos);
    case Kind::Pages:
        return QStringLiteral("pages:%1").arg(layout.pagesPerSheet);
    case Kind::Booklet:
        return QStringLiteral("booklet");
    }
    return QStringLiteral("single");
}

} // namespace

std::optional<Caption> captionFromText(const QString &text)
{
    const auto known = std::ranges::find_if(
        captionWords, [&text](const CaptionWord &row) { return text == QLatin1String(row.word); });
    return known == captionWords.end() ? std::nullopt : std::optional(known->caption);
}

QString captionText(Caption caption)
{
    return QLatin1String(std::ranges::find(captionWords, caption, &CaptionWord::caption)->word);
}

SheetLayout SheetLayout::usual(Kind kind)
{
    SheetLayout layout;
    layout.kind = kind;
    if (kind == Kind::Contact) {
        layout.rows = 5;
        layout.columns = 4;
        layout.caption = Caption::FileName;
    }
    if (kind == Kind::Pages || kind == Kind::Booklet)
        layout.gap = 0; // pages have margins of their own
    layout.isRepeated = kind == Kind::Strips || kind == Kind::ManyOfSize;
    layout.hasCutMarks = kind == Kind::ManyOfSize || kind == Kind::Strips;
    return layout;
}

std::optional<SheetLayout> SheetLayout::fromText(const QString &text)
{
    constexpr qsizetype longest = 1000; // millions of words would take much memory
    if (text.size() > longest)
        return std::nullopt;
    const QStringList words = text.split(u',');
    auto layout = kindFromWord(words.constFirst());
    for (qsizetype i = 1; layout && i < words.size(); ++i) {
        if (!readWord(words.at(i), *layout))
            layout.reset();
    }
    return layout && isPossible(*layout) ? layout : std::nullopt;
}

QString SheetLayout::toText() const
{
    const SheetLayout common = usual(kind);
    QStringList words = {wordOf(*this)};
    if (isRepeated != common.isRepeated)
        words += isRepeated ? QStringLiteral("repeat") : QStringLiteral("follow");
    if (hasCutMarks != common.hasCutMarks)
        words += hasCutMarks ? QStringLiteral("marks") : QStringLiteral("nomarks");
    constexpr double rounding = 1e-4;
    if (std::abs(gap - common.gap) > rounding)
        words += gapWord + lengthText(gap);
    if (caption != common.caption)
        words += captionWord + captionText(caption);
    return words.join(u',');
}

} // namespace printdialog
