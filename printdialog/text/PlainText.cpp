// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlainText.h"

#include <algorithm>

namespace printdialog {

namespace {

constexpr char16_t zeroWidthNonJoiner = 0x200C;
constexpr char16_t zeroWidthJoiner = 0x200D;

bool isControl(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/// Format characters include those that change the writing direction. The joiners are kept, since some
/// languages need them.
bool isUnwantedFormat(QChar character)
{
    return character.category() == QChar::Other_Format && character != zeroWidthJoiner &&
           character != zeroWidthNonJoiner;
}

bool isPlainAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character >= u' ' && character < u'\x7f'; });
}

QString withoutUnwanted(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            plain += character;
            plain += text[++i];
        } else if (character == u'\t' || character == u'\n') {
            plain += u' ';
        } else if (!character.isSurrogate() && !isControl(character) && !isUnwantedFormat(character)) {
            plain += character;
        }
    }
    return plain;
}

} // namespace

QString plainText(const QString &untrusted, qsizetype limit)
{
    QString plain = isPlainAscii(untrusted) ? untrusted : withoutUnwanted(untrusted);
    if (plain.size() > limit) {
        const bool splitsPair = plain.at(limit - 2).isHighSurrogate();
        plain.truncate(limit - (splitsPair ? 2 : 1));
        plain += QChar(0x2026);
    }
    return plain;
}

bool hasControls(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), isControl);
}

} // namespace printdialog
