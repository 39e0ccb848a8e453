// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlainText.h"

namespace printdialog {
namespace {

bool turnsDirection(char16_t c)
{
    return c == 0x061c || c == 0x200e || c == 0x200f || (c >= 0x202a && c <= 0x202e) ||
           (c >= 0x2066 && c <= 0x2069);
}

} // namespace

QString plainText(const QString &untrusted)
{
    QString plain;
    plain.reserve(untrusted.size());
    for (qsizetype i = 0; i < untrusted.size(); ++i) {
        const QChar c = untrusted[i];
        if (c.isHighSurrogate() && i + 1 < untrusted.size() && untrusted[i + 1].isLowSurrogate()) {
            plain += c;
            plain += untrusted[++i];
            continue;
        }
        const QChar::Category category = c.category();
        if (category != QChar::Other_Control && category != QChar::Separator_Line &&
            category != QChar::Separator_Paragraph && !c.isSurrogate() && !turnsDirection(c.unicode()))
            plain += c;
    }
    return plain;
}

} // namespace printdialog
