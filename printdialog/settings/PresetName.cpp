// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetName.h"

#include "PlainText.h"

namespace printdialog {

namespace {

constexpr qsizetype mostBytes = 127; // the limit of a queue's name
const QString mapped =
    QStringLiteral(" /\\?'\"#"); // the characters that lpadmin(8) refuses in a queue's name

/// The mapped character whose hexadecimal digits the text begins with.
std::optional<QChar> characterOf(QStringView digits)
{
    const QChar character(digits.first(std::min<qsizetype>(2, digits.size())).toUShort(nullptr, 16));
    return mapped.contains(character) ? std::optional(character) : std::nullopt;
}

/// Whether a percent sign with the text after it would be read as a mapped character or as a mapped percent
/// sign.
bool needsMapping(QStringView behindPercent)
{
    while (behindPercent.startsWith(u"25"))
        behindPercent = behindPercent.sliced(2);
    return characterOf(behindPercent).has_value();
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

QString PresetName::cleaned(const QString &typed)
{
    const QString trimmed = typed.trimmed();
    return hasControls(trimmed) ? trimmed : plainText(trimmed);
}

SettingsFailure PresetName::objection(const QString &name)
{
    const auto failure = [](const QString &text) {
        return Failure<SettingsFault>{SettingsFault::BadName, text, {}};
    };
    if (name.isEmpty())
        return failure(tr("A preset needs a name."));
    if (plainText(name) != name)
        return failure(
            tr("The name holds a control character, such as a tab or a line break. Type it without."));
    if (const qsizetype bytes = instanceOf(name).toUtf8().size(); bytes > mostBytes)
        return failure(tr("The name is too long: it takes %1 bytes to store, and CUPS allows %2. Choose a "
                          "shorter one.")
                           .arg(bytes)
                           .arg(mostBytes));
    return std::nullopt;
}

bool PresetName::areSame(const QString &one, const QString &other)
{
    return asciiFolded(one) == asciiFolded(other);
}

QString PresetName::instanceOf(const QString &name)
{
    QString instance;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar character = name.at(i);
        if (mapped.contains(character) ||
            (character == u'%' && needsMapping(QStringView(name).sliced(i + 1))))
            instance += u'%' + QString::number(character.unicode(), 16).toUpper();
        else
            instance += character;
    }
    return instance;
}

QString PresetName::ofInstance(const QString &instance)
{
    QString name;
    for (qsizetype i = 0; i < instance.size(); ++i) {
        const QStringView behind = QStringView(instance).sliced(i + 1);
        if (instance.at(i) == u'%' && needsMapping(behind)) {
            name += characterOf(behind).value_or(u'%');
            i += 2;
        } else {
            name += instance.at(i);
        }
    }
    return name;
}

} // namespace printdialog
