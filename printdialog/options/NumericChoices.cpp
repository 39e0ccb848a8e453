// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "NumericChoices.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <utility>
#include <vector>

namespace printdialog {

namespace {

constexpr qsizetype exactDigits = 17; // fit in 64 bits with the sign

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// The digits before and after a number's decimal point, without sign.
struct Halves
{
    bool negative;
    QString whole;
    QString fraction;
};

Halves halves(const QString &number)
{
    const bool sign = number.startsWith(u'-') || number.startsWith(u'+');
    const QString digits = number.sliced(sign ? 1 : 0);
    const qsizetype point = digits.indexOf(u'.');
    return {number.startsWith(u'-'), digits.left(point), point < 0 ? QString() : digits.sliced(point + 1)};
}

/// The canonical spelling of a value, exact for any number of digits.
QString shortest(const QString &number)
{
    auto [negative, whole, fraction] = halves(number);
    while (whole.startsWith(u'0'))
        whole.remove(0, 1);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    if (whole.isEmpty() && fraction.isEmpty())
        return QStringLiteral("0");
    return QStringLiteral("%1%2.%3").arg(negative ? QStringLiteral("-") : QString(), whole, fraction);
}

/// The number in units of the last decimal.
std::optional<qint64> scaled(const QString &number, qsizetype decimals)
{
    const auto [negative, whole, fraction] = halves(number);
    const QString digits = whole + fraction.leftJustified(decimals, u'0');
    if (digits.size() > exactDigits)
        return std::nullopt;
    return negative ? -digits.toLongLong() : digits.toLongLong();
}

QString spelled(qint64 units, qsizetype decimals)
{
    QString digits = QString::number(units).rightJustified(decimals + 1, u'0');
    return decimals > 0 ? digits.insert(digits.size() - decimals, u'.') : digits;
}

} // namespace

DecimalText decimalText(const QString &text)
{
    const qsizetype sign = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
    qsizetype digits = 0;
    qsizetype points = 0;
    for (qsizetype at = sign; at < text.size(); ++at) {
        if (isDigit(text.at(at)))
            ++digits;
        else if (text.at(at) == u'.')
            ++points;
        else
            return DecimalText::Other;
    }
    if (points > 1)
        return DecimalText::Other;
    return digits > 0 ? DecimalText::Number : DecimalText::Beginning;
}

NumericChoices::NumericChoices(const QStringList &keywords)
{
    for (const QString &keyword : keywords) {
        if (decimalText(keyword) != DecimalText::Number)
            continue;
        QString &known = keywordOf_[shortest(keyword)];
        if (!known.isEmpty())
            continue;
        known = keyword;
        keywords_ += keyword;
    }
}

std::optional<QString> NumericChoices::byValue(const QString &number) const
{
    if (decimalText(number) != DecimalText::Number)
        return std::nullopt;
    const auto keyword = keywordOf_.constFind(shortest(number));
    if (keyword == keywordOf_.cend())
        return std::nullopt;
    return *keyword;
}

QString NumericChoices::range() const
{
    qsizetype decimals = 0;
    for (const QString &keyword : keywords_)
        decimals = std::max(decimals, halves(keyword).fraction.size());
    std::vector<std::pair<qint64, QString>> values;
    for (const QString &keyword : keywords_) {
        const auto value = scaled(keyword, decimals);
        if (!value)
            return {};
        values.emplace_back(*value, keyword);
    }
    if (values.size() < 3)
        return {};
    std::sort(values.begin(), values.end());
    const qint64 step = values.at(1).first - values.at(0).first;
    for (size_t i = 2; i < values.size(); ++i) {
        if (values.at(i).first - values.at(i - 1).first != step)
            return {};
    }
    const QString &low = values.front().second;
    const QString &high = values.back().second;
    if (decimals == 0 && step == 1)
        return QCoreApplication::translate("NumericChoices", "%1 to %2").arg(low, high);
    return QCoreApplication::translate("NumericChoices", "%1 to %2 in steps of %3")
        .arg(low, high, spelled(step, decimals));
}

} // namespace printdialog
