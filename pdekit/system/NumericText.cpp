// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "NumericText.h"

#include <QtCore/QLocale>

#include <algorithm>
#include <limits>

namespace pdekit {

namespace {

bool isDigitAt(QStringView text, qsizetype i)
{
    return i < text.size() && text[i] >= u'0' && text[i] <= u'9';
}

bool isSignAt(QStringView text, qsizetype i)
{
    return i < text.size() && (text[i] == u'-' || text[i] == u'+');
}

qsizetype afterDigits(QStringView text, qsizetype i)
{
    while (isDigitAt(text, i))
        ++i;
    return i;
}

QStringView withoutLeadingSpace(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    return text.mid(i);
}

} // namespace

int leadingInteger(QStringView text)
{
    const QStringView number = withoutLeadingSpace(text);
    const qsizetype first = isSignAt(number, 0) ? 1 : 0;
    const bool negative = first == 1 && number[0] == u'-';
    constexpr qint64 beyondInt = qint64(std::numeric_limits<int>::max()) + 2;
    qint64 value = 0;
    for (qsizetype i = first; isDigitAt(number, i); ++i)
        value = std::min(value * 10 + (number[i].unicode() - u'0'), beyondInt);
    value = negative ? -value : value;
    return static_cast<int>(
        std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

double leadingDouble(QStringView text)
{
    const QStringView number = withoutLeadingSpace(text);
    const qsizetype first = isSignAt(number, 0) ? 1 : 0;
    qsizetype end = afterDigits(number, first);
    qsizetype digits = end - first;
    if (end < number.size() && number[end] == u'.') {
        const qsizetype fractionEnd = afterDigits(number, end + 1);
        digits += fractionEnd - (end + 1);
        end = fractionEnd;
    }
    if (digits == 0)
        return 0.0;
    if (end < number.size() && (number[end] == u'e' || number[end] == u'E')) {
        const qsizetype exponent = end + (isSignAt(number, end + 1) ? 2 : 1);
        if (isDigitAt(number, exponent))
            end = afterDigits(number, exponent);
    }
    return QLocale::c().toDouble(number.left(end));
}

} // namespace pdekit
