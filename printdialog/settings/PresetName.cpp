// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetName.h"

#include "PlainText.h"

#include <algorithm>

namespace printdialog {

namespace {

constexpr qsizetype mostBytes = 127;                   // as for a queue's name
const QString separators = QStringLiteral("/\\?'\"#"); // as lpadmin(8) refuses them in a queue's name

bool isAllowed(QChar character)
{
    return !character.isSpace() && !separators.contains(character) &&
           (character.isPrint() || character.isSurrogate());
}

QString proposal(const QString &name)
{
    QString proposed;
    for (const QChar character : name.trimmed())
        proposed += isAllowed(character) ? character : QChar(u'-');
    return plainText(proposed);
}

QString asciiFolded(QString text)
{
    for (QChar &character : text) {
        if (character >= u'A' && character <= u'Z')
            character = character.toLower();
    }
    return text;
}

} // namespace

SettingsFailure PresetName::objection(const QString &name)
{
    const auto failure = [](const QString &text) {
        return Failure<SettingsFault>{SettingsFault::BadName, text, {}};
    };
    if (name.isEmpty())
        return failure(tr("A preset needs a name."));
    if (name.toUtf8().size() > mostBytes)
        return failure(tr("The name is too long: CUPS allows %1 bytes.").arg(mostBytes));
    if (std::ranges::all_of(name, isAllowed) && plainText(name) == name)
        return std::nullopt;
    const QString allowed =
        tr("A preset's name may have letters, digits and signs, but no space and none of / \\ ? ' \" #.");
    const QString proposed = proposal(name);
    return failure(proposed.isEmpty() ? allowed : tr("%1 Try \"%2\".").arg(allowed, proposed));
}

bool PresetName::areSame(const QString &one, const QString &other)
{
    return asciiFolded(one) == asciiFolded(other);
}

} // namespace printdialog
