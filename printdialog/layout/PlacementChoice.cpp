// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlacementChoice.h"

#include <QtCore/QStringList>
#include <QtGui/QColor>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

struct ScalingWord
{
    Scaling scaling;
    const char *word;
};

constexpr std::array scalingWords = {ScalingWord{Scaling::Fit, "fit"}, ScalingWord{Scaling::Fill, "fill"},
                                     ScalingWord{Scaling::ActualSize, "actual"}};

/// Reads "key=value" into the choice. False for any other text.
bool readWord(const QString &word, PlacementChoice &choice)
{
    const QString key = word.section(u'=', 0, 0);
    const QString value = word.section(u'=', 1);
    if (key == QLatin1String("size")) {
        choice.size = PrintSize::fromText(value);
        return choice.size.has_value();
    }
    if (key == QLatin1String("scale")) {
        const auto scale = PlacementChoice::scaleFromText(value);
        choice.scale = scale.value_or(1);
        return scale.has_value();
    }
    if (key == QLatin1String("border")) {
        const auto border = PhotoBorder::fromText(value);
        choice.border = border.value_or(PhotoBorder());
        return border.has_value();
    }
    constexpr int mostTurns = 3;
    bool isNumber = false;
    choice.turns = value.toInt(&isNumber);
    return key == QLatin1String("turns") && isNumber && choice.turns >= 0 && choice.turns <= mostTurns;
}

} // namespace

QString scalingWord(Scaling scaling)
{
    return QLatin1String(std::ranges::find(scalingWords, scaling, &ScalingWord::scaling)->word);
}

std::optional<Scaling> scalingFromWord(const QString &word)
{
    const auto known = std::ranges::find_if(
        scalingWords, [&word](const ScalingWord &row) { return word == QLatin1String(row.word); });
    return known == scalingWords.end() ? std::nullopt : std::optional(known->scaling);
}

std::optional<PhotoBorder> PhotoBorder::fromText(const QString &text)
{
    if (text == QLatin1String("none"))
        return PhotoBorder();
    const qsizetype comma = text.indexOf(u',');
    const auto width = lengthFromText(text.left(comma));
    if (!width || *width < 0 || *width > widest)
        return std::nullopt;
    PhotoBorder border{*width};
    if (comma < 0)
        return border;
    const QString name = text.mid(comma + 1).trimmed();
    constexpr int opaque = 255;
    if (!QColor::isValidColor(name) || QColor(name).alpha() != opaque)
        return std::nullopt;
    border.color = QColor(name).rgb();
    return border;
}

QString PhotoBorder::toText() const
{
    if (!isThere())
        return QStringLiteral("none");
    const QString length = lengthText(width);
    return color == PhotoBorder().color ? length : QStringLiteral("%1,%2").arg(length, QColor(color).name());
}

std::optional<double> PlacementChoice::scaleFromText(const QString &text)
{
    constexpr double perCent = 100;
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber) / perCent;
    return isNumber && scale >= leastScale && scale <= mostScale ? std::optional(scale) : std::nullopt;
}

QString PlacementChoice::toText() const
{
    QStringList words = {scalingWord(scaling)};
    if (size)
        words += QStringLiteral("size=") + size->toText();
    if (scale != 1)
        words += QStringLiteral("scale=%1").arg(scale * 100);
    if (turns != 0)
        words += QStringLiteral("turns=%1").arg(turns);
    if (border.isThere())
        words += QStringLiteral("border=") + border.toText();
    return words.join(u' ');
}

std::optional<PlacementChoice> PlacementChoice::fromText(const QString &text)
{
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    const auto scaling = scalingFromWord(words.value(0));
    if (!scaling)
        return std::nullopt;
    PlacementChoice choice{*scaling};
    for (qsizetype i = 1; i < words.size(); ++i) {
        if (!readWord(words.at(i), choice))
            return std::nullopt;
    }
    return choice;
}

} // namespace printdialog
