// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalsText.h"

#include <algorithm>

namespace printdialog {

namespace {

const QByteArray preferredGroup = "preferred";
const QByteArray printKey = "org.freedesktop.impl.portal.Print";
const QByteArray thisDialog = "corvel";

bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

QByteArray withoutBlanksBefore(const QByteArray &text)
{
    return text.sliced(std::ranges::find_if_not(text, isBlank) - text.begin());
}

} // namespace

QByteArray PortalsText::entry()
{
    return printKey + '=' + thisDialog;
}

PortalsText::PortalsText(QByteArray text)
    : text_(std::move(text))
{
    read();
}

// As GLib reads it, which is what the front end uses.
void PortalsText::read()
{
    bool isInGroup = false;
    bool isInAnyGroup = false;
    int number = 0;
    for (qsizetype begin = 0, end = 0; begin < text_.size() && wrongLine_ == 0; begin = end) {
        ++number;
        const qsizetype feed = text_.indexOf('\n', begin);
        end = feed < 0 ? text_.size() : feed + 1;
        qsizetype lineEnd = feed < 0 ? text_.size() : feed;
        if (lineEnd > begin && text_.at(lineEnd - 1) == '\r')
            --lineEnd;
        const QByteArray line = withoutBlanksBefore(text_.sliced(begin, lineEnd - begin));
        const qsizetype equals = line.indexOf('=');
        if (line.contains('\0')) {
            wrongLine_ = number;
        } else if (line.startsWith('[')) {
            const qsizetype close = line.indexOf(']');
            if (close < 2 || !withoutBlanksBefore(line.sliced(close + 1)).isEmpty())
                wrongLine_ = number;
            isInAnyGroup = true;
            isInGroup = line.sliced(1, std::max<qsizetype>(close - 1, 0)) == preferredGroup;
            if (isInGroup && groupBegin_ < 0)
                groupBegin_ = end;
        } else if (!line.isEmpty() && !line.startsWith('#')) {
            if (equals < 1 || !isInAnyGroup)
                wrongLine_ = number;
            else if (isInGroup && line.first(equals).trimmed() == printKey)
                keys_.append(
                    {begin, lineEnd - withoutBlanksBefore(line.sliced(equals + 1)).size(), lineEnd, end});
        }
    }
}

QList<QByteArray> PortalsText::portals(const KeyLine &line) const
{
    return text_.sliced(line.value, line.valueEnd - line.value).split(';');
}

bool PortalsText::prefersThisDialog() const
{
    return !keys_.isEmpty() && portals(keys_.constLast()).constFirst() == thisDialog;
}

QByteArray PortalsText::withThisDialog() const
{
    QByteArray text = text_;
    if (prefersThisDialog())
        return text;
    if (!keys_.isEmpty()) {
        const KeyLine &line = keys_.constLast();
        return text.insert(line.value, line.value == line.valueEnd ? thisDialog : thisDialog + ';');
    }
    if (groupBegin_ < 0) {
        if (!text.isEmpty() && !text.endsWith('\n'))
            text += lineEnd();
        return text + '[' + preferredGroup + ']' + lineEnd() + entry() + lineEnd();
    }
    const bool hasLineEnd = text.at(groupBegin_ - 1) == '\n';
    return text.insert(groupBegin_, hasLineEnd ? entry() + lineEnd() : lineEnd() + entry());
}

QByteArray PortalsText::withoutThisDialog() const
{
    QByteArray text = text_;
    for (auto line = keys_.crbegin(); line != keys_.crend(); ++line) {
        QList<QByteArray> others = portals(*line);
        if (others.removeAll(thisDialog) == 0)
            continue;
        if (!std::ranges::all_of(others, &QByteArray::isEmpty)) {
            text.replace(line->value, line->valueEnd - line->value, others.join(';'));
            continue;
        }
        text.remove(line->begin, line->end - line->begin);
        // The last line had no line end, and the one before it was given one for it.
        if (line->end == line->valueEnd && text.endsWith('\n'))
            text.chop(text.endsWith("\r\n") ? 2 : 1);
    }
    return text;
}

} // namespace printdialog
