// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>

namespace printdialog {

/// Why a photo cannot be printed.
enum class PhotoFault {
    NotFound,     ///< No such file.
    NotReadable,  ///< A folder, a pipe, a device, or a file without permission or with a read error.
    Empty,        ///< A file without content.
    TooLarge,     ///< More bytes or pixels than a photo may have.
    NeedsPackage, ///< The format needs a package that is not installed.
    UnknownType,  ///< The content is not a printable picture, whatever the file's name says.
    Truncated,    ///< The end of the picture is missing.
    Broken,       ///< The content contradicts its own format.
    Damaged,      ///< The headers are intact, but the pixels are corrupted.
};

/// An open file that may hold a photo. Only a regular file is opened, so that no pipe or device can block.
class PhotoFile
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoFile)

public:
    /// Opens the file without reading it. Faults: NotFound, NotReadable, Empty.
    static Result<PhotoFile, PhotoFault> open(const QString &path);

    qint64 size() const { return size_; } ///< In bytes, when it was opened.
    QDateTime modified() const { return modified_; }
    /// The first bytes of the file, at most that many.
    QByteArray head(qint64 bytes) const;
    /// The complete current content. It is copied and not mapped, since the process would be killed if
    /// another program truncated a mapped file. Fault: NotReadable.
    Result<QByteArray, PhotoFault> content() const;

private:
    PhotoFile(const QString &path, pdekit::FileDescriptor descriptor)
        : path_(path)
        , descriptor_(std::move(descriptor))
    {
    }

    QString path_;
    pdekit::FileDescriptor descriptor_;
    qint64 size_ = 0;
    QDateTime modified_;
};

} // namespace printdialog
