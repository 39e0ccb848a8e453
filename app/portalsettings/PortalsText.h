// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

namespace printdialog {

/// The text of a portals.conf(5), and whether it prefers this dialog for printing. Bytes, since only one key
/// matters and everything else stays as it is, whatever its encoding and its line ends.
class PortalsText
{
public:
    /// The key with its value, as it is written into files.
    static QByteArray entry();

    explicit PortalsText(QByteArray text);

    /// The number of the first line, from 1, for which the portal's front end ignores the whole text; 0
    /// without one. The rest is only for texts without one.
    int wrongLine() const { return wrongLine_; }
    /// Whether programs print through this dialog.
    bool prefersThisDialog() const;
    /// The text that prefers this dialog. What was preferred before follows behind it.
    QByteArray withThisDialog() const;
    /// The text without this dialog; without the key if it names nothing else.
    QByteArray withoutThisDialog() const;

    const QByteArray &text() const { return text_; }

private:
    /// A line that has the key: places in the text.
    struct KeyLine
    {
        qsizetype begin;
        qsizetype value;
        qsizetype valueEnd;
        qsizetype end; ///< behind the line end
    };

    void read();
    QList<QByteArray> portals(const KeyLine &line) const;
    QByteArray lineEnd() const { return text_.contains("\r\n") ? "\r\n" : "\n"; }

    QByteArray text_;
    int wrongLine_ = 0;
    qsizetype groupBegin_ = -1; ///< behind the line "[preferred]"
    QList<KeyLine> keys_;       ///< the last one counts
};

} // namespace printdialog
