// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintList.h"

#include <QtCore/QHash>

namespace printdialog {

/// Opens the files of a print list's entries, each once, however many entries it has. May be used on any
/// thread, one at a time.
class FileOpener
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::FileOpener)

public:
    /// The photo, the page of the document, or all of its pages, as the entry wants them. A file that failed
    /// fails again with the same words. Blocks, see Photo::openAll().
    Result<QList<PlacedPhoto>, PhotoFault> open(const PrintList::Entry &entry);
    /// Opens a document, which needs a password, with that one. NeedsPassword: it is another one.
    std::optional<Failure<PhotoFault>> unlock(const QString &path, const QString &password);

private:
    using Opened = Result<QList<Photo>, PhotoFault>;

    const Opened &opened(const QString &path, const QString &password);

    QHash<QString, std::shared_ptr<Opened>> files_; ///< By path.
};

} // namespace printdialog
