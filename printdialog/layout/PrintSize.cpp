// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintSize.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

struct Unit
{
    const char *name;
    double points;
};

/// Far more than any length or size needs: the time to find out that a text is none grows with its square.
constexpr qsizetype longestSizeText = 100;

constexpr std::array units = {Unit{"mm", pointsPerMillimeter}, Unit{"cm", 10 * pointsPerMillimeter},
                              Unit{"in", pointsPerInch}, Unit{"pt", 1}};

std::optional<double> unitFromText(const QString &name)
{
    const auto unit = std::ranges::find_if(units, [&name](const Unit &known) {
        return name.compare(QLatin1String(known.name), Qt::CaseInsensitive) == 0;
    });
    return unit == units.end() ? std::nullopt : std::optional(unit->points);
}

/// The number in the C locale with as few digits as it needs.
QString numberText(double number)
{
    constexpr double precision = 1000;
    return QString::number(std::round(number * precision) / precision, 'g', 10);
}

/// The unit that both lengths have the fewest digits in.
const Unit &shortestUnit(std::initializer_list<double> lengths)
{
    const auto digits = [&lengths](const Unit &unit) {
        qsizetype count = 0;
        for (const double length : lengths)
            count += numberText(length / unit.points).size();
        return count;
    };
    const std::span written = std::span(units).first(units.size() - 1); // no one writes points
    return *std::ranges::min_element(written, {}, digits);
}

constexpr PrintSize metric(double width, double height, bool keepsOrientation = false)
{
    return {QSizeF(width * pointsPerMillimeter, height * pointsPerMillimeter), keepsOrientation};
}

constexpr PrintSize inches(double width, double height)
{
    return {QSizeF(width * pointsPerInch, height * pointsPerInch), false};
}

const std::array knownSizes = {
    KnownPrintSize{"9x13cm", nullptr, metric(90, 130)},
    KnownPrintSize{"10x15cm", nullptr, metric(100, 150)},
    KnownPrintSize{"13x18cm", nullptr, metric(130, 180)},
    KnownPrintSize{"15x20cm", nullptr, metric(150, 200)},
    KnownPrintSize{"4x6in", nullptr, inches(4, 6)},
    KnownPrintSize{"5x7in", nullptr, inches(5, 7)},
    KnownPrintSize{"8x10in", nullptr, inches(8, 10)},
    KnownPrintSize{"square", QT_TRANSLATE_NOOP("printdialog::KnownPrintSize", "Square"), metric(100, 100)},
    KnownPrintSize{"passport", QT_TRANSLATE_NOOP("printdialog::KnownPrintSize", "Passport"),
                   metric(35, 45, true)},
    KnownPrintSize{"wallet", QT_TRANSLATE_NOOP("printdialog::KnownPrintSize", "Wallet"), inches(2.5, 3.5)},
};

} // namespace

std::optional<double> lengthFromText(const QString &text)
{
    if (text.size() > longestSizeText)
        return std::nullopt;
    static const QRegularExpression length(
        QStringLiteral("\\A\\s*([+-]?[0-9]*\\.?[0-9]+)\\s*([A-Za-z]{2})\\s*\\z"));
    const QRegularExpressionMatch match = length.match(text);
    const auto unit = unitFromText(match.captured(2));
    bool isNumber = false;
    const double number = match.captured(1).toDouble(&isNumber);
    if (!match.hasMatch() || !unit || !isNumber || !std::isfinite(number * *unit))
        return std::nullopt;
    return number * *unit;
}

QString lengthText(double points)
{
    const Unit &unit = shortestUnit({points});
    return numberText(points / unit.points) + QLatin1String(unit.name);
}

QString localLengthText(double points)
{
    const QLocale locale;
    constexpr double precision = 100;
    const bool usesInches = locale.measurementSystem() == QLocale::ImperialUSSystem;
    const double length = points / (usesInches ? pointsPerInch : pointsPerMillimeter);
    return QStringLiteral("%1 %2").arg(locale.toString(std::round(length * precision) / precision, 'g', 6),
                                       usesInches ? QStringLiteral("in") : QStringLiteral("mm"));
}

QString localSizeText(const QSizeF &points)
{
    const QLocale locale;
    constexpr double precision = 100;
    const bool usesInches = locale.measurementSystem() == QLocale::ImperialUSSystem;
    const auto number = [&](double side) {
        const double length = side / (usesInches ? pointsPerInch : 10 * pointsPerMillimeter);
        return locale.toString(std::round(length * precision) / precision, 'g', 6);
    };
    return QStringLiteral("%1 × %2 %3")
        .arg(number(points.width()), number(points.height()),
             usesInches ? QStringLiteral("in") : QStringLiteral("cm"));
}

std::optional<PrintSize> PrintSize::fromText(const QString &text)
{
    if (text.size() > longestSizeText)
        return std::nullopt;
    const QString name = text.trimmed();
    const auto known = std::ranges::find_if(knownSizes, [&name](const KnownPrintSize &size) {
        return name.compare(QLatin1String(size.id), Qt::CaseInsensitive) == 0;
    });
    if (known != knownSizes.end())
        return known->size;
    static const QRegularExpression sides(
        QStringLiteral("\\A([0-9]*\\.?[0-9]+)\\s*[xX\\x{d7}]\\s*([0-9]*\\.?[0-9]+)\\s*([A-Za-z]{2})(!?)\\z"));
    const QRegularExpressionMatch match = sides.match(name);
    const auto unit = unitFromText(match.captured(3));
    if (!match.hasMatch() || !unit)
        return std::nullopt;
    const QSizeF points = QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) * *unit;
    const auto isPossible = [](double side) {
        constexpr double rounding = 1e-6;
        return side >= shortestSide - rounding && side <= longestSide + rounding;
    };
    if (!isPossible(points.width()) || !isPossible(points.height()))
        return std::nullopt;
    return PrintSize{points, !match.captured(4).isEmpty()};
}

QString PrintSize::toText() const
{
    const auto known = std::ranges::find(knownSizes, *this, &KnownPrintSize::size);
    if (known != knownSizes.end())
        return QLatin1String(known->id);
    const Unit &unit = shortestUnit({points.width(), points.height()});
    return QStringLiteral("%1x%2%3%4")
        .arg(numberText(points.width() / unit.points), numberText(points.height() / unit.points),
             QLatin1String(unit.name), keepsOrientation ? QStringLiteral("!") : QString());
}

QString PrintSize::localText() const
{
    const Unit &unit = shortestUnit({points.width(), points.height()});
    const QLocale locale;
    const auto number = [&](double length) {
        constexpr int mostDigits = 6;
        return locale.toString(std::round(length / unit.points * 1000) / 1000, 'g', mostDigits);
    };
    return QStringLiteral("%1 × %2 %3")
        .arg(number(points.width()), number(points.height()), QLatin1String(unit.name));
}

QString KnownPrintSize::text() const
{
    return name ? tr("%1 (%2)", "a print size: its name and its sides").arg(tr(name), size.localText())
                : size.localText();
}

std::span<const KnownPrintSize> KnownPrintSize::all()
{
    return knownSizes;
}

} // namespace printdialog
