// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CleanText.h"

#include <algorithm>

namespace printdialog {

namespace {

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph;
}

bool changesDirection(QChar c)
{
    const ushort code = c.unicode();
    return code == 0x061c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

} // namespace

QString cleanText(const QString &text, qsizetype limit)
{
    QString clean;
    clean.reserve(text.size());
    for (const QChar c : text) {
        if (c.isSpace())
            clean += u' ';
        else if (!isControl(c) && !changesDirection(c))
            clean += c;
    }
    clean = clean.simplified();
    if (clean.size() > limit) {
        const bool splitsPair = clean.at(limit - 2).isHighSurrogate();
        clean.truncate(limit - (splitsPair ? 2 : 1));
        clean += QChar(0x2026);
    }
    return clean;
}

bool hasControls(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), isControl);
}

} // namespace printdialog
