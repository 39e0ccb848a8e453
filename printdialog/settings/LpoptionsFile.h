// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// The text of a CUPS "lpoptions" file (lpoptions(1)): a line for each queue or instance, with its options.
/// Other lines are kept byte for byte.
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

    /// The entries in the file's order; other lines are skipped.
    QList<Entry> entries() const;

    /// Replaces the entry's options, or appends the entry. False: its line would be too long.
    bool set(const Destination &destination, const QMap<QString, QString> &options);
    /// Renames the entry's instance; its options stay byte for byte. False: a line would be too long, and
    /// nothing was changed.
    bool rename(const Destination &destination, const QString &newInstance);
    void remove(const Destination &destination);

    QByteArray text() const;

private:
    QList<QByteArray> lines_; // without their ends
};

} // namespace printdialog
