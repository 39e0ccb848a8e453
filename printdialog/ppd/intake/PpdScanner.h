// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

#include <optional>

namespace printdialog {

/// One entry of a PPD: a line, or several when its quoted value continues.
struct PpdLine
{
    qsizetype begin = 0;      ///< Offset of the first byte.
    qsizetype end = 0;        ///< Offset after the last byte, without the line's end.
    int number = 0;           ///< The number of its first line, from 1.
    qsizetype longest = 0;    ///< The bytes of its longest line.
    bool complete = false;    ///< The last line has a line end.
    bool quoteClosed = false; ///< All quotes are paired.
    /// Without the asterisk; empty for comments, blank lines and lines that are not entries.
    QByteArrayView mainKeyword;
    QByteArrayView optionKeyword; ///< May be empty.
    QByteArrayView text;          ///< The translation after the slash; may be empty.
    QByteArrayView value;         ///< After the colon, trimmed, with its quotes.
};

/// Splits a PPD into entries by libcups' rules for line ends (CR, LF, CRLF) and quotes, so that both see the
/// same entries. Borrows the bytes. A single pass.
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
