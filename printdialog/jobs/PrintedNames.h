// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "KeptFiles.h"

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// Where the built-in printer writes its files.
struct OutputFolder
{
    QString path;
    bool isOverwritten = false; ///< Whether files of an earlier run are replaced.
    QStringList photos = {};    ///< Files that are never replaced.
    /// The name of one PDF with all sheets, without suffix; nothing: a PDF for each sheet.
    std::optional<QString> document = std::nullopt;
};

/// The names of the files that one run writes to a folder. Each photo has two, its page and its ticket, whose
/// names differ only in the suffix. Files of other runs or programs are replaced only if `isOverwritten` is
/// set. Photos and this run's own files are never replaced.
class PrintedNames
{
public:
    static constexpr QLatin1String pageSuffix = QLatin1String(".pdf");
    static constexpr QLatin1String ticketSuffix = QLatin1String(".ticket.json");

    explicit PrintedNames(const OutputFolder &folder);

    const OutputFolder &folder() const { return folder_; }
    /// The name for a photo's files, without suffix: the photo's file name without its last suffix, control
    /// characters and leading dots, or "photo" when nothing is left. If one of the two files exists,
    /// `photo-2`, `photo-3` and so on. A long name is shortened to what the folder allows.
    QString nameFor(const QString &photoPath) const;
    /// Why the folder's document cannot have its name, in one or two sentences; nothing when it can.
    std::optional<QString> whyUnfit() const;
    /// Whether the folder's document would replace files, which it may.
    bool isDocumentThere() const;
    /// Marks the name as used, by this run's files or by another program.
    void markTaken(const QString &name) { taken_.insert(name); }

private:
    bool isFree(const QString &name) const;

    OutputFolder folder_;
    qsizetype longestName_; ///< In bytes, without suffix.
    KeptFiles photos_;
    QSet<QString> taken_;
};

} // namespace printdialog
