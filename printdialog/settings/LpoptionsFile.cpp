// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LpoptionsFile.h"

#include "PresetName.h"

#include <cups/cups.h>

#include <algorithm>
#include <optional>
#include <span>

namespace printdialog {

namespace {

/// The parts of one line; the options are unparsed.
struct Line
{
    QByteArray keyword; // "Dest", or "Default" for the user's default
    Destination destination;
    QByteArray options;

    bool isOf(const Destination &other) const
    {
        return PresetName::areSame(destination.queue, other.queue) &&
               PresetName::areSame(destination.instance, other.instance);
    }
};

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Removes the first word and the spaces after it, and returns the word.
QByteArray takeWord(QByteArray &text)
{
    const auto end = std::find_if(text.cbegin(), text.cend(), isSpace);
    QByteArray word = text.first(end - text.cbegin());
    text = text.sliced(word.size()).trimmed();
    return word;
}

/// Like libcups: the first number sign begins a comment, unless it follows a backslash.
QByteArray withoutComment(QByteArray line)
{
    const qsizetype sign = line.indexOf('#');
    if (sign > 0 && line.at(sign - 1) == '\\')
        return line.remove(sign - 1, 1);
    return sign < 0 ? line : line.first(sign);
}

std::optional<Line> parsed(const QByteArray &text)
{
    QByteArray rest = withoutComment(text).trimmed();
    Line line;
    line.keyword = takeWord(rest);
    if (line.keyword.compare("dest", Qt::CaseInsensitive) != 0 &&
        line.keyword.compare("default", Qt::CaseInsensitive) != 0)
        return std::nullopt;
    line.destination = QString::fromUtf8(takeWord(rest));
    line.options = rest;
    return line.destination.queue.isEmpty() ? std::nullopt : std::optional(line);
}

QMap<QString, QString> optionsOf(const QByteArray &text)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &options);
    QMap<QString, QString> map;
    for (const cups_option_t &option : std::span(options, static_cast<size_t>(count)))
        map.insert(QString::fromUtf8(option.name), QString::fromUtf8(option.value));
    cupsFreeOptions(count, options);
    return map;
}

bool isPlain(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '_' || c == '-' || c == '+';
}

QByteArray quoted(const QByteArray &value)
{
    if (!value.isEmpty() && std::ranges::all_of(value, isPlain))
        return value;
    QByteArray text = "\"";
    for (const char c : value) {
        // Also escape the number sign, which begins a comment for libcups.
        if (c == '"' || c == '\\' || c == '#')
            text += '\\';
        text += c;
    }
    return text + '"';
}

} // namespace

LpoptionsFile::LpoptionsFile(const QByteArray &text)
    : lines_(text.split('\n'))
{
    if (lines_.constLast().isEmpty())
        lines_.removeLast();
}

QList<LpoptionsFile::Entry> LpoptionsFile::entries() const
{
    QList<Entry> entries;
    for (const QByteArray &text : lines_) {
        if (const auto line = parsed(text))
            entries += {line->destination, optionsOf(line->options)};
    }
    return entries;
}

bool LpoptionsFile::set(const Destination &destination, const QMap<QString, QString> &options)
{
    QByteArray text;
    for (auto option = options.cbegin(); option != options.cend(); ++option)
        text += ' ' + option.key().toUtf8() + '=' + quoted(option.value().toUtf8());
    const QByteArray added = "Dest " + destination.id().toUtf8() + text;
    if (added.size() + qsizetype(sizeof "Default") > longestLine)
        return false;
    // libcups merges all lines of one entry.
    bool isSet = false;
    for (auto each = lines_.begin(); each != lines_.end();) {
        const auto line = parsed(*each);
        if (!line || !line->isOf(destination)) {
            ++each;
        } else if (isSet) {
            each = lines_.erase(each);
        } else {
            *each = line->keyword + ' ' + line->destination.id().toUtf8() + text;
            isSet = true;
            ++each;
        }
    }
    if (!isSet)
        lines_ += added;
    return true;
}

bool LpoptionsFile::rename(const Destination &destination, const QString &newInstance)
{
    QList<QByteArray> lines = lines_;
    for (QByteArray &text : lines) {
        const auto line = parsed(text);
        if (!line || !line->isOf(destination))
            continue;
        QByteArray rest = text.trimmed();
        takeWord(rest);
        takeWord(rest);
        text = line->keyword + ' ' + Destination(line->destination.queue, newInstance).id().toUtf8() + ' ' +
               rest;
        if (text.size() > longestLine)
            return false;
    }
    lines_ = lines;
    return true;
}

void LpoptionsFile::remove(const Destination &destination)
{
    lines_.removeIf([&](const QByteArray &text) {
        const auto line = parsed(text);
        return line && line->isOf(destination);
    });
}

QByteArray LpoptionsFile::text() const
{
    return lines_.isEmpty() ? QByteArray() : lines_.join('\n') + '\n';
}

} // namespace printdialog
