// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomChoice.h"

#include "NumericChoices.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

constexpr double pointsPerInch = 72;
constexpr double pointsPerMillimeter = pointsPerInch / 25.4;
constexpr qsizetype longestValue = 255; // bytes in IPP's names
constexpr int realDecimals = 4;
constexpr int lengthDecimals = 2;

const QLatin1String customWord("Custom");
const QLatin1String customPrefix("Custom.");

struct CustomText
{
    Q_DECLARE_TR_FUNCTIONS(CustomChoice)
};

/// Without trailing zeros after the decimal point.
QString shortNumber(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    while (text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString localNumber(double value, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const qsizetype used = shortNumber(value, decimals).section(u'.', 1).size();
    return locale.toString(value, 'f', static_cast<int>(used));
}

bool isMetric()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem;
}

double pointsPerUnit()
{
    return isMetric() ? pointsPerMillimeter : pointsPerInch;
}

QString lengthText(double points)
{
    return isMetric() ? CustomText::tr("%1 mm").arg(lengthNumber(points))
                      : CustomText::tr("%1 in", "inches").arg(lengthNumber(points));
}

/// Invalid for anything else.
QTime timeIn(const CustomParameter &parameter, const QString &value)
{
    if (parameter.kind != CustomParameter::Kind::Time)
        return {};
    const QTime time = QTime::fromString(value, QStringLiteral("H:m"));
    return time.isValid() ? time : QTime::fromString(value, QStringLiteral("H:m:s"));
}

QString valueText(const CustomParameter &parameter, const QString &value)
{
    if (parameter.kind == CustomParameter::Kind::Points)
        return lengthText(value.toDouble());
    if (const QTime time = timeIn(parameter, value); time.isValid())
        return QLocale().toString(time, time.second() == 0 ? QLocale::ShortFormat : QLocale::LongFormat);
    return parameter.isNumber() ? localNumber(value.toDouble(), realDecimals) : plainText(value);
}

/// Values with other characters are quoted.
bool isBare(const QString &value)
{
    return !value.isEmpty() && std::all_of(value.cbegin(), value.cend(), [](QChar c) {
        return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'.' || c == u'-' || c == u'_');
    });
}

/// The words of `{NAME=VALUE NAME='VALUE'}`, in which a backslash protects the next character.
std::optional<CustomValues> valuesInBraces(const QString &choice)
{
    CustomValues values;
    const QString text = choice.sliced(1, choice.size() - 2);
    for (qsizetype at = 0; at < text.size();) {
        if (text.at(at).isSpace()) {
            ++at;
            continue;
        }
        const qsizetype equals = text.indexOf(u'=', at);
        if (equals < 0)
            return std::nullopt;
        const QString name = text.sliced(at, equals - at);
        at = equals + 1;
        QString value;
        QChar quote;
        for (; at < text.size() && (!quote.isNull() || !text.at(at).isSpace()); ++at) {
            const QChar c = text.at(at);
            if (c == u'\\' && at + 1 < text.size())
                value += text.at(++at);
            else if (!quote.isNull() && c == quote)
                quote = QChar();
            else if (quote.isNull() && (c == u'\'' || c == u'"'))
                quote = c;
            else
                value += c;
        }
        values.insert(name, value);
    }
    return values;
}

} // namespace

bool isCustomChoice(const QString &choice)
{
    return choice == customWord || choice.startsWith(customPrefix) ||
           (choice.size() >= 2 && choice.startsWith(u'{') && choice.endsWith(u'}'));
}

bool isSecret(const QList<CustomParameter> &parameters)
{
    return std::ranges::any_of(parameters, &CustomParameter::isSecret);
}

std::optional<CustomValues> customValues(const QList<CustomParameter> &parameters, const QString &choice)
{
    if (parameters.isEmpty() || choice == customWord || !isCustomChoice(choice))
        return std::nullopt;
    if (choice.startsWith(customPrefix)) {
        if (parameters.size() != 1)
            return std::nullopt;
        return CustomValues{{parameters.constFirst().name, choice.sliced(customPrefix.size())}};
    }
    auto values = valuesInBraces(choice);
    const bool isComplete = values && values->size() == parameters.size() &&
                            std::ranges::all_of(parameters, [&values](const CustomParameter &parameter) {
                                return values->contains(parameter.name);
                            });
    return isComplete ? values : std::nullopt;
}

QString customChoice(const QList<CustomParameter> &parameters, const CustomValues &values)
{
    if (parameters.size() == 1)
        return customPrefix + values.value(parameters.constFirst().name);
    QStringList words;
    for (const CustomParameter &parameter : parameters) {
        QString value = values.value(parameter.name);
        if (!isBare(value)) {
            value.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
            value = u'\'' + value + u'\'';
        }
        words += parameter.name + u'=' + value;
    }
    return u'{' + words.join(u' ') + u'}';
}

std::optional<QString> customValue(const CustomParameter &parameter, const QString &value)
{
    if (parameter.kind == CustomParameter::Kind::Time) {
        const QTime time = timeIn(parameter, value);
        if (!time.isValid())
            return std::nullopt;
        return time.toString(time.second() == 0 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
    }
    if (!parameter.isNumber()) {
        const qsizetype length = value.size();
        const bool isPasscode = parameter.kind == CustomParameter::Kind::Passcode;
        const bool isAllowed = static_cast<double>(length) >= parameter.minimum &&
                               static_cast<double>(length) <= parameter.maximum &&
                               value.toUtf8().size() <= longestValue && !hasControls(value) &&
                               (!isPasscode || std::all_of(value.cbegin(), value.cend(),
                                                           [](QChar c) { return c >= u'0' && c <= u'9'; }));
        return isAllowed ? std::optional(value) : std::nullopt;
    }
    if (decimalText(value) != DecimalText::Number)
        return std::nullopt;
    const double number = value.toDouble();
    const bool isInteger = parameter.kind == CustomParameter::Kind::Integer;
    if (!std::isfinite(number) || number < parameter.minimum || number > parameter.maximum ||
        (isInteger && number != std::floor(number)))
        return std::nullopt;
    const int decimals = parameter.kind == CustomParameter::Kind::Points ? lengthDecimals : realDecimals;
    return shortNumber(number, isInteger ? 0 : decimals);
}

QString allowedText(const CustomParameter &parameter)
{
    if (parameter.kind == CustomParameter::Kind::Points)
        return CustomText::tr("from %1 to %2")
            .arg(lengthText(parameter.minimum), lengthText(parameter.maximum));
    if (parameter.isNumber())
        return CustomText::tr("from %1 to %2")
            .arg(localNumber(parameter.minimum, realDecimals), localNumber(parameter.maximum, realDecimals));
    if (parameter.kind == CustomParameter::Kind::Time)
        return CustomText::tr("a time from %1 to %2").arg(QStringLiteral("00:00"), QStringLiteral("23:59"));
    const QString least = QString::number(static_cast<int>(parameter.minimum));
    const QString most = QString::number(static_cast<int>(parameter.maximum));
    if (parameter.kind == CustomParameter::Kind::Passcode)
        return least == most ? CustomText::tr("%1 digits").arg(most)
                             : CustomText::tr("%1 to %2 digits").arg(least, most);
    return least == most ? CustomText::tr("%1 characters").arg(most)
                         : CustomText::tr("%1 to %2 characters").arg(least, most);
}

QString customText(const QList<CustomParameter> &parameters, const QString &choice)
{
    if (isSecret(parameters))
        return CustomText::tr("entered, not shown");
    const auto values = customValues(parameters, choice);
    if (!values)
        return plainText(choice);
    if (parameters.size() == 1)
        return valueText(parameters.constFirst(), values->first());
    QStringList parts;
    for (const CustomParameter &parameter : parameters)
        parts += CustomText::tr("%1: %2", "a value's name and the value")
                     .arg(parameter.text, valueText(parameter, values->value(parameter.name)));
    return parts.join(CustomText::tr(", ", "between the parts of a list"));
}

QString lengthUnit()
{
    return isMetric() ? CustomText::tr("mm") : CustomText::tr("in", "inches");
}

QString lengthNumber(double points)
{
    return localNumber(points / pointsPerUnit(), isMetric() ? 1 : lengthDecimals);
}

std::optional<double> typedLength(const QString &typed)
{
    const QString number = typed.trimmed().replace(u',', u'.');
    if (decimalText(number) != DecimalText::Number)
        return std::nullopt;
    const double points = number.toDouble() * pointsPerUnit();
    return std::isfinite(points) ? std::optional(points) : std::nullopt;
}

std::optional<QString> typedValue(const CustomParameter &parameter, const QString &typed)
{
    if (!parameter.isNumber())
        return customValue(parameter, typed);
    if (parameter.kind != CustomParameter::Kind::Points)
        return customValue(parameter, typed.trimmed().replace(u',', u'.'));
    const auto points = typedLength(typed);
    if (!points)
        return std::nullopt;
    // What is shown as the end of the range is allowed, even where rounding puts it a little beyond.
    constexpr double rounding = 0.4;
    const double nearest =
        std::clamp(*points, parameter.minimum, std::max(parameter.minimum, parameter.maximum));
    return customValue(
        parameter, shortNumber(std::abs(nearest - *points) < rounding ? nearest : *points, lengthDecimals));
}

QString typedText(const CustomParameter &parameter, const QString &value)
{
    if (parameter.kind == CustomParameter::Kind::Points)
        return lengthNumber(value.toDouble());
    return parameter.isNumber() ? localNumber(value.toDouble(), realDecimals) : value;
}

std::optional<QSizeF> customPagePoints(const QString &keyword)
{
    struct Unit
    {
        QLatin1String name;
        double points;
    };
    static const std::array units = {
        Unit{QLatin1String(""), 1},
        Unit{QLatin1String("pt"), 1},
        Unit{QLatin1String("mm"), pointsPerMillimeter},
        Unit{QLatin1String("cm"), 10 * pointsPerMillimeter},
        Unit{QLatin1String("m"), 1000 * pointsPerMillimeter},
        Unit{QLatin1String("in"), pointsPerInch},
        Unit{QLatin1String("ft"), 12 * pointsPerInch},
    };
    static const QRegularExpression pattern(QStringLiteral(
        "\\ACustom\\.([0-9]{1,6}(?:\\.[0-9]{1,6})?)x([0-9]{1,6}(?:\\.[0-9]{1,6})?)([a-z]*)\\z"));
    const QRegularExpressionMatch match = pattern.match(keyword);
    const auto *const unit = std::ranges::find(units, match.captured(3), &Unit::name);
    if (!match.hasMatch() || unit == units.end())
        return std::nullopt;
    return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) * unit->points;
}

QString customPageKeyword(const QSizeF &points)
{
    return QStringLiteral("Custom.%1x%2mm")
        .arg(shortNumber(points.width() / pointsPerMillimeter, lengthDecimals),
             shortNumber(points.height() / pointsPerMillimeter, lengthDecimals));
}

QString pageSizeText(const QSizeF &points)
{
    const QString width = lengthNumber(points.width());
    const QString height = lengthNumber(points.height());
    return isMetric() ? CustomText::tr("%1 × %2 mm").arg(width, height)
                      : CustomText::tr("%1 × %2 in", "inches").arg(width, height);
}

} // namespace printdialog
