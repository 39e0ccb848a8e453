// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "FileIdentity.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace printdialog {

/// Why a photo cannot be printed.
enum class PhotoFault {
    NotFound,      ///< No such file.
    NotReadable,   ///< A folder, a pipe, a device, or a file without permission or with a read error.
    Empty,         ///< A file without content.
    TooLarge,      ///< More bytes or pixels than a photo may have.
    NeedsPackage,  ///< The format needs a package that is not installed.
    UnknownType,   ///< The content is not a printable picture, whatever the file's name says.
    Truncated,     ///< The end of the picture is missing.
    Broken,        ///< The content contradicts its own format.
    Damaged,       ///< The headers are intact, but the pixels are corrupted.
    NeedsPassword, ///< A document that is encrypted, and the password was wrong if there was one.
    Changed,       ///< The file is not the one that was opened, or was written to since.
};

/// An open file that may hold a photo. Only a regular file is opened, so that no pipe or device can block.
class PhotoFile
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoFile)

public:
    /// Opens the file without reading it. Faults: NotFound, NotReadable, Empty.
    static Result<PhotoFile, PhotoFault> open(const QString &path);

    /// Of the file when it was opened.
    const FileIdentity &identity() const { return identity_; }
    qint64 size() const { return identity_.size; } ///< In bytes, when it was opened.
    /// The bytes from an offset on: at most that many, and none behind the end. None when they cannot be
    /// read.
    QByteArray part(qint64 offset, qint64 size) const;
    /// The complete content. It is copied and not mapped, since the process would be killed if another
    /// program truncated a mapped file. Faults: NotReadable, and Changed when it was written to since it was
    /// opened.
    Result<QByteArray, PhotoFault> content() const;

    /// The failure for a file that is not what it was.
    static Failure<PhotoFault> changed(const QString &path);

private:
    PhotoFile(const QString &path, pdekit::FileDescriptor descriptor)
        : path_(path)
        , descriptor_(std::move(descriptor))
    {
    }

    QString path_;
    pdekit::FileDescriptor descriptor_;
    FileIdentity identity_;
};

} // namespace printdialog
