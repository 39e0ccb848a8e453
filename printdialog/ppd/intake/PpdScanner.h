// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

#include <optional>

namespace printdialog {

/// One entry of a PPD: a line, or several when its quoted value goes on.
struct PpdLine
{
    qsizetype begin = 0;      ///< Offset of the first byte.
    qsizetype end = 0;        ///< Offset after the last byte, without the line's end.
    int number = 0;           ///< Of the first line, from 1.
    qsizetype longest = 0;    ///< Bytes of the longest line of the entry.
    bool complete = false;    ///< The last line had an end.
    bool quoteClosed = false; ///< Quotes are in pairs.
    QByteArrayView
        mainKeyword; ///< Without the asterisk; empty for comments, blank lines and what is no entry.
    QByteArrayView optionKeyword; ///< May be empty.
    QByteArrayView text;          ///< The translation after the slash; may be empty.
    QByteArrayView value;         ///< After the colon, trimmed, with its quotes.
};

/// Cuts a PPD into entries by libcups' own rules for line ends (CR, LF, CRLF) and quotes, so that what is
/// counted here is what libcups will see. Borrows the bytes. One pass; a line is never read twice.
class PpdScanner
{
public:
    explicit PpdScanner(QByteArrayView data);

    /// The next entry, or nothing at the end.
    std::optional<PpdLine> next();

private:
    void split(PpdLine &line) const;

    QByteArrayView data_;
    qsizetype position_ = 0;
    int lineNumber_ = 1;
};

} // namespace printdialog
