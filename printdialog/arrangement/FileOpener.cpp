// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FileOpener.h"

#include "PlainText.h"

#include <QtCore/QFileInfo>

namespace printdialog {

Result<QList<PlacedPhoto>, PhotoFault> FileOpener::open(const PrintList::Entry &entry)
{
    const auto known = files_.constFind(entry.path);
    const Opened &photos = known == files_.constEnd() ? opened(entry.path, {}) : **known;
    if (!photos)
        return photos.failure();
    QList<PlacedPhoto> placed;
    for (const Photo &photo : *photos) {
        if (!entry.page || photo.page() == *entry.page)
            placed += PlacedPhoto{photo, entry.placement, false, entry.copies};
    }
    if (!placed.isEmpty())
        return placed;
    return Failure<PhotoFault>{PhotoFault::NotFound,
                               tr("\"%1\" has no page %2. Correct the print list.")
                                   .arg(plainText(QFileInfo(entry.path).fileName(), shownTextLimit),
                                        QString::number(*entry.page + 1)),
                               {}};
}

std::optional<Failure<PhotoFault>> FileOpener::unlock(const QString &path, const QString &password)
{
    const Opened &photos = opened(path, password);
    return photos ? std::nullopt : std::optional(photos.failure());
}

const FileOpener::Opened &FileOpener::opened(const QString &path, const QString &password)
{
    auto photos = std::make_shared<Opened>(Photo::openAll(path, password));
    files_.insert(path, photos);
    return *photos;
}

} // namespace printdialog
