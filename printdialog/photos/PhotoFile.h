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
    NotReadable,  ///< A folder, a pipe, a device, or a file that may not or cannot be read.
    Empty,        ///< A file without content.
    TooLarge,     ///< More bytes or pixels than a photo may have.
    NeedsPackage, ///< A picture whose format needs a package that is not installed.
    UnknownType,  ///< The content is no picture that can be printed, whatever the file's name says.
    Truncated,    ///< The picture's end is missing.
    Broken,       ///< The content contradicts its own format.
    Damaged,      ///< The headers are sound, but the pixels are not as they were stored.
};

/// An open file that may hold a photo. Only a regular file is opened, so that no pipe or device can block.
class PhotoFile
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoFile)

public:
    /// Opens without reading. Faults: NotFound, NotReadable, Empty.
    static Result<PhotoFile, PhotoFault> open(const QString &path);

    qint64 size() const { return size_; } ///< In bytes, when it was opened.
    QDateTime modified() const { return modified_; }
    /// The first bytes, at most as many as asked for.
    QByteArray head(qint64 bytes) const;
    /// The whole content, as much of it as there still is. It is copied and not mapped, since reading from a
    /// mapped file that another program shortens ends the process. Fault: NotReadable.
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
