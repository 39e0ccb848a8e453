// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdScanner.h"

#include <algorithm>

namespace printdialog {

namespace {

bool isBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

QByteArrayView take(QByteArrayView &rest, auto stop)
{
    const auto end = std::find_if(rest.begin(), rest.end(), stop);
    const QByteArrayView taken = rest.first(end - rest.begin());
    rest = rest.sliced(taken.size());
    return taken;
}

} // namespace

PpdScanner::PpdScanner(QByteArrayView data)
    : data_(data)
{
}

std::optional<PpdLine> PpdScanner::next()
{
    if (position_ >= data_.size())
        return std::nullopt;
    PpdLine line;
    line.begin = position_;
    line.number = lineNumber_;
    const bool comment = data_.sliced(position_).startsWith("*%");
    bool colon = false;
    bool quoted = false;
    qsizetype lineBegin = position_;
    qsizetype at = position_;
    for (; at < data_.size(); ++at) {
        const char byte = data_.at(at);
        if (byte == '\r' || byte == '\n') {
            line.longest = std::max(line.longest, at - lineBegin);
            line.end = at;
            if (byte == '\r' && at + 1 < data_.size() && data_.at(at + 1) == '\n')
                ++at;
            ++lineNumber_;
            lineBegin = at + 1;
            if (!quoted) {
                line.complete = true;
                break;
            }
        } else if (byte == ':' && !comment) {
            colon = true;
        } else if (byte == '"' && colon) {
            quoted = !quoted;
        }
    }
    if (!line.complete) {
        line.longest = std::max(line.longest, at - lineBegin);
        line.end = at;
    }
    position_ = line.complete ? at + 1 : at;
    line.quoteClosed = !quoted;
    if (!comment)
        split(line);
    return line;
}

void PpdScanner::split(PpdLine &line) const
{
    QByteArrayView rest = data_.sliced(line.begin, line.end - line.begin);
    if (!rest.startsWith('*'))
        return;
    rest = rest.sliced(1);
    const auto visible = [](char byte) {
        return !isBlank(byte);
    };
    line.mainKeyword = take(rest, [](char byte) { return isBlank(byte) || byte == ':'; });
    take(rest, visible);
    line.optionKeyword = take(rest, [](char byte) { return isBlank(byte) || byte == ':' || byte == '/'; });
    take(rest, visible);
    if (rest.startsWith('/'))
        line.text = take(rest, [](char byte) { return byte == ':'; }).sliced(1);
    if (rest.startsWith(':'))
        line.value = rest.sliced(1).trimmed();
}

} // namespace printdialog
