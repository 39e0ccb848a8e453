// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdText.h"

#include <algorithm>

namespace printdialog {

namespace {

constexpr char16_t zeroWidthNonJoiner = 0x200C;
constexpr char16_t zeroWidthJoiner = 0x200D;

bool mayBeShown(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format: // holds the bidirectional controls; the joiners are needed to write some
                              // languages
        return character == zeroWidthJoiner || character == zeroWidthNonJoiner;
    default:
        return true;
    }
}

bool isPlainAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character > u' ' && character < u'\x7f'; });
}

} // namespace

QString plainPpdText(const QString &text, qsizetype limit)
{
    if (text.size() <= limit && isPlainAscii(text)) // nearly every keyword
        return text;
    QString plain;
    plain.reserve(text.size());
    for (const QChar character : text) {
        if (mayBeShown(character))
            plain += character;
        else if (character == u'\t' || character == u'\n')
            plain += u' ';
    }
    plain = plain.trimmed();
    if (plain.size() > limit) {
        plain.truncate(plain.at(limit - 2).isHighSurrogate() ? limit - 2 : limit - 1);
        plain += QChar(0x2026);
    }
    return plain;
}

} // namespace printdialog
