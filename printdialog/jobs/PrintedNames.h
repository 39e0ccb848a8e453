// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <utility>

namespace printdialog {

/// Where the built-in printer leaves its files.
struct OutputFolder
{
    QString path;
    bool isOverwritten = false; ///< Files of an earlier run are replaced.
    QStringList photos = {};    ///< Files that are not replaced all the same.
};

/// The names of the files that one run of printing leaves in a folder. A photo has two, its page and its
/// ticket, of the same name but for the suffix. No file that another run or program has made is replaced,
/// unless the folder is overwritten; a photo never is, nor what this run has made.
class PrintedNames
{
public:
    static constexpr QLatin1String pageSuffix = QLatin1String(".pdf");
    static constexpr QLatin1String ticketSuffix = QLatin1String(".ticket.json");

    explicit PrintedNames(const OutputFolder &folder);

    const OutputFolder &folder() const { return folder_; }
    /// The name for a photo's files, without suffix: the photo's file name without its last suffix, control
    /// characters and leading dots; "photo" when nothing is left. `photo-2`, `photo-3`, ... when one of the
    /// two is taken. Of a long name, only as much as the folder allows.
    QString nameFor(const QString &photoPath) const;
    /// This run has given the name to its files, or another program has taken it.
    void markTaken(const QString &name) { taken_.insert(name); }

private:
    using FileIdentity = std::pair<quint64, quint64>; ///< device and inode

    bool isFree(const QString &name) const;

    OutputFolder folder_;
    qsizetype longestName_; ///< In bytes, without suffix.
    QSet<FileIdentity> photos_;
    QSet<QString> taken_;
};

} // namespace printdialog
