// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoFile.h"

#include "FileName.h"
#include "PlainText.h"

#include <QtCore/QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <optional>

namespace printdialog {
namespace {

Failure<PhotoFault> systemFailure(int error, const QString &path)
{
    const QString name = plainText(path);
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        if (isForeignName(path))
            return {PhotoFault::NotFound, foreignNameText(path), {}};
        return {PhotoFault::NotFound,
                PhotoFile::tr("There is no photo \"%1\". Check its name and folder.").arg(name),
                {}};
    case EACCES:
    case EPERM:
        return {
            PhotoFault::NotReadable,
            PhotoFile::tr("You may not read \"%1\". Ask its owner for the permission to read it.").arg(name),
            qt_error_string(error)};
    default:
        return {PhotoFault::NotReadable,
                PhotoFile::tr("\"%1\" could not be read: %2. Check the disk or card that it is on.")
                    .arg(name, qt_error_string(error)),
                {}};
    }
}

std::optional<Failure<PhotoFault>> kindFailure(mode_t mode, const QString &path)
{
    if (S_ISREG(mode))
        return std::nullopt;
    const QString text =
        S_ISDIR(mode)
            ? PhotoFile::tr("\"%1\" is a folder. Choose a photo inside it.")
            : PhotoFile::tr("\"%1\" is not a file but a device, a pipe or a socket. Choose a photo.");
    return Failure<PhotoFault>{PhotoFault::NotReadable, text.arg(plainText(path)), {}};
}

/// Reads from the offset on until the buffer is full or the file ends. Returns the number of bytes, or -1.
qint64 readFully(int descriptor, QByteArray &buffer, qint64 offset)
{
    qint64 done = 0;
    while (done < buffer.size()) {
        const ssize_t count = ::pread(descriptor, buffer.data() + done,
                                      static_cast<std::size_t>(buffer.size() - done), offset + done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

FileIdentity identityOf(const struct stat &status)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    return {status.st_dev, status.st_ino, status.st_size,
            status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

} // namespace

Result<PhotoFile, PhotoFault> PhotoFile::open(const QString &path)
{
    const QByteArray encoded = QFile::encodeName(path);
    struct stat status = {};
    // Check before opening, since opening alone disturbs some devices.
    if (::stat(encoded.constData(), &status) != 0)
        return systemFailure(errno, path);
    if (auto failure = kindFailure(status.st_mode, path))
        return *failure;

    PhotoFile file(path, pdekit::FileDescriptor(
                             ::open(encoded.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)));
    if (!file.descriptor_.isOpen() || ::fstat(file.descriptor_.number(), &status) != 0)
        return systemFailure(errno, path);
    if (auto failure = kindFailure(status.st_mode, path))
        return *failure;
    if (status.st_size == 0)
        return Failure<PhotoFault>{
            PhotoFault::Empty,
            tr("\"%1\" is empty. Copy the file again from where it came from.").arg(plainText(path)),
            {}};
    file.identity_ = identityOf(status);
    return file;
}

QByteArray PhotoFile::part(qint64 offset, qint64 size) const
{
    QByteArray buffer(std::clamp(this->size() - offset, qint64(0), size), Qt::Uninitialized);
    buffer.resize(qMax(qint64(0), readFully(descriptor_.number(), buffer, offset)));
    return buffer;
}

Result<QByteArray, PhotoFault> PhotoFile::content() const
{
    QByteArray buffer(size(), Qt::Uninitialized);
    const qint64 count = readFully(descriptor_.number(), buffer, 0);
    struct stat status = {};
    if (count < 0 || ::fstat(descriptor_.number(), &status) != 0)
        return systemFailure(errno, path_);
    if (count != size() || identityOf(status) != identity_)
        return changed(path_);
    return buffer;
}

Failure<PhotoFault> PhotoFile::changed(const QString &path)
{
    return {PhotoFault::Changed,
            tr("\"%1\" has changed since it was opened. Add it again.").arg(plainText(path)),
            {}};
}

} // namespace printdialog
