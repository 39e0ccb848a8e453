// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileIdentity.h"
#include "PhotoFile.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <mutex>

namespace printdialog {

/// The bytes of an opened photo's file, read whenever they are needed: a job may have thousands of photos.
/// They are shared by all who use them at the same time. Of all photos, those used last stay in memory, up to
/// 32 MiB; a larger file is read each time. Any thread.
class PhotoContent
{
public:
    using Bytes = std::shared_ptr<const QByteArray>;

    PhotoContent(const QString &path, const FileIdentity &identity)
        : path_(path)
        , identity_(identity)
    {
    }

    const FileIdentity &identity() const { return identity_; }

    /// The complete content. Faults: Changed when the path now leads to another file or the file was written
    /// to, and those of PhotoFile::open().
    Result<Bytes, PhotoFault> read();
    /// A part of the content, not kept: at most `size` bytes from `offset` on. The same faults.
    Result<QByteArray, PhotoFault> read(qint64 offset, qint64 size) const;

private:
    Result<PhotoFile, PhotoFault> open() const;

    QString path_;
    FileIdentity identity_;
    std::mutex mutex_; ///< Held while reading, so that two threads do not read the same file twice.
    std::weak_ptr<const QByteArray> bytes_;
};

} // namespace printdialog
