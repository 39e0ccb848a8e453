// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// The text of a CUPS "lpoptions" file (lpoptions(1)): a line for each queue, or instance of one, with its
/// options. Lines that are not asked for stay byte for byte.
class LpoptionsFile
{
public:
    struct Entry
    {
        Destination destination; ///< without an instance: the queue itself
        QMap<QString, QString> options;
    };

    /// The longest line that libcups reads as one, in bytes.
    static constexpr qsizetype longestLine = 8190;

    explicit LpoptionsFile(const QByteArray &text);

    /// In the file's order; what is no entry is left out.
    QList<Entry> entries() const;

    /// Puts the options in the place of those the entry has, or adds it at the end. False: its line would be
    /// too long.
    bool set(const Destination &destination, const QMap<QString, QString> &options);
    /// Gives the entry another instance name; its options stay byte for byte. False: a line would be too
    /// long; nothing has changed then.
    bool rename(const Destination &destination, const QString &newInstance);
    void remove(const Destination &destination);

    QByteArray text() const;

private:
    QList<QByteArray> lines_; // without their ends
};

} // namespace printdialog
