// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoList.h"

#include <utility>

namespace printdialog {

Result<PhotoList, PhotoFault> PhotoList::open(const QStringList &paths)
{
    PhotoList list;
    qsizetype kept = 0;
    for (const QString &path : paths) {
        auto photo = Photo::open(path);
        if (!photo)
            return photo.failure();
        const qsizetype size = photo->content().size();
        if (kept + size <= keptBytes) {
            kept += size;
            list.photos_.push_back({path, *std::move(photo)});
        } else {
            list.photos_.push_back({path, std::nullopt});
        }
    }
    return list;
}

Result<Photo, PhotoFault> PhotoList::take(qsizetype index)
{
    Entry &entry = photos_.at(static_cast<std::size_t>(index));
    if (auto photo = std::exchange(entry.photo, std::nullopt))
        return *std::move(photo);
    return Photo::open(entry.path);
}

} // namespace printdialog
