// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdFile.h"

#include "FileDescriptor.h"
#include "FileName.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using pdekit::FileDescriptor;

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PpdFile)
};

Failure<PpdFault> failure(PpdFault fault, const QString &text, const QString &path)
{
    return {fault, text.arg(plainText(path, 300)), {}};
}

Failure<PpdFault> notRegular(const QString &path, mode_t mode)
{
    return failure(PpdFault::NotReadable,
                   S_ISDIR(mode)
                       ? Text::tr("\"%1\" is a directory; name the PPD file itself.")
                       : Text::tr("\"%1\" is a device or a pipe, not a file; name the printer's PPD file."),
                   path);
}

} // namespace

Failure<PpdFault> ppdNotReadable(const QString &name, int error)
{
    if (error == ENOENT || error == ENOTDIR)
        return failure(PpdFault::NotFound, Text::tr("There is no PPD \"%1\"; check the path."), name);
    return {PpdFault::NotReadable,
            Text::tr("The PPD \"%1\" cannot be read: %2; check the file and its permissions.")
                .arg(plainText(name, 300), qt_error_string(error)),
            {}};
}

Result<QByteArray, PpdFault> readPpdFile(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return ppdNotReadable(path, ENOENT);
    const QByteArray nativePath = bytesOfFileName(path);
    struct stat status = {};
    // Opening a device may already have an effect, so it is looked at by its name first.
    if (::stat(nativePath.constData(), &status) != 0)
        return ppdNotReadable(path, errno);
    if (!S_ISREG(status.st_mode))
        return notRegular(path, status.st_mode);
    const FileDescriptor file(::open(nativePath.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
        return ppdNotReadable(path, errno);
    if (!S_ISREG(status.st_mode))
        return notRegular(path, status.st_mode);

    // One byte more than allowed tells a file that is too large, also one that grows meanwhile.
    const qsizetype most = PpdLimits::bytes + 1;
    QByteArray bytes(std::min<qsizetype>(most, status.st_size + 1), Qt::Uninitialized);
    qsizetype size = 0;
    while (size < most) {
        if (size == bytes.size())
            bytes.resize(std::min(most, 2 * size));
        const ssize_t count =
            ::read(file.number(), bytes.data() + size, static_cast<size_t>(bytes.size() - size));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return ppdNotReadable(path, errno);
        if (count == 0)
            break;
        size += count;
    }
    bytes.resize(size);
    return bytes;
}

int ppdInMemory(const QByteArray &bytes)
{
    FileDescriptor memory(::memfd_create("ppd", MFD_CLOEXEC));
    if (memory.number() < 0)
        return -1;
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count = ::write(memory.number(), bytes.constData() + written,
                                      static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            return -1;
        written += std::max<ssize_t>(count, 0);
    }
    if (::lseek(memory.number(), 0, SEEK_SET) != 0)
        return -1;
    return memory.release();
}

} // namespace printdialog
