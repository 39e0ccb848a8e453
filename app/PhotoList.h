// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QStringList>

#include <vector>

namespace printdialog {

/// The photos of one run, all of them opened before the first is printed. Only some stay in memory; the
/// others are read again when they are printed.
class PhotoList
{
public:
    /// The limit for the content kept in memory, in bytes.
    static constexpr qsizetype keptBytes = qsizetype(256) << 20;

    /// Opens each photo. Fails with the first one that cannot be printed.
    static Result<PhotoList, PhotoFault> open(const QStringList &paths);

    /// The first photo, without taking it; nothing when it was not kept.
    std::optional<Photo> first() const { return photos_.empty() ? std::nullopt : photos_.front().photo; }
    qsizetype size() const { return static_cast<qsizetype>(photos_.size()); }
    /// Takes the photo; call once per index.
    Result<Photo, PhotoFault> take(qsizetype index);

private:
    struct Entry
    {
        QString path;
        std::optional<Photo> photo; ///< nothing when it was not kept
    };

    std::vector<Entry> photos_;
};

} // namespace printdialog
