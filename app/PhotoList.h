// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QStringList>

#include <vector>

namespace printdialog {

/// The photos of one run, all of them looked at before the first is printed. Only so many stay in memory; the
/// others are read again when their turn comes.
class PhotoList
{
public:
    /// How much of the photos' content is kept, in bytes.
    static constexpr qsizetype keptBytes = qsizetype(256) << 20;

    /// Opens each photo. Fails with the first one that cannot be printed.
    static Result<PhotoList, PhotoFault> open(const QStringList &paths);

    /// The first one, not handed over; nothing when it was not kept.
    std::optional<Photo> first() const { return photos_.empty() ? std::nullopt : photos_.front().photo; }
    qsizetype size() const { return static_cast<qsizetype>(photos_.size()); }
    /// The photo, handed over: it can be taken once.
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
