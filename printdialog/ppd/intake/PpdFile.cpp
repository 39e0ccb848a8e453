// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdFile.h"

#include "FileDescriptor.h"
#include "FileName.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <zlib.h>

using pdekit::FileDescriptor;

namespace printdialog {

namespace {

struct FileText
{
    Q_DECLARE_TR_FUNCTIONS(PpdFile)
};

Failure<PpdFault> failure(PpdFault fault, const QString &text, const QString &path)
{
    return {fault, text.arg(plainText(path, 300)), {}};
}

const QByteArray gzipMagic = "\x1f\x8b";

Failure<PpdFault> damagedArchive(const QString &path, const QString &reason)
{
    return {PpdFault::CutOff,
            FileText::tr(
                "The compressed PPD \"%1\" cannot be expanded: %2. Copy it again from where it came from.")
                .arg(plainText(path, 300), reason),
            {}};
}

/// Decompresses like gunzip(1), up to one byte more than allowed, which shows that it is too large.
Result<QByteArray, PpdFault> expanded(const QByteArray &compressed, const QString &path)
{
    z_stream stream = {};
    if (inflateInit2(&stream, MAX_WBITS + 16) != Z_OK) // 16: expect a gzip header
        return ppdNotReadable(path, ENOMEM);
    const std::unique_ptr<z_stream, int (*)(z_stream *)> owner(&stream, inflateEnd);
    // zlib does not write to its input, although the type is not const.
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(compressed.constData()));
    stream.avail_in = static_cast<uInt>(compressed.size());
    QByteArray bytes;
    std::array<char, 65536> chunk = {};
    while (bytes.size() <= PpdLimits::bytes) {
        stream.next_out = reinterpret_cast<Bytef *>(chunk.data());
        stream.avail_out = chunk.size();
        const int status = inflate(&stream, Z_NO_FLUSH);
        bytes.append(chunk.data(), static_cast<qsizetype>(chunk.size() - stream.avail_out));
        // A file may consist of several gzip members; bytes after the last one are padding.
        const bool hasMoreMembers = status == Z_STREAM_END && stream.avail_in >= 2 &&
                                    stream.next_in[0] == 0x1f && stream.next_in[1] == 0x8b;
        if (status == Z_STREAM_END && !hasMoreMembers)
            return bytes;
        if (hasMoreMembers ? inflateReset(&stream) != Z_OK : status == Z_BUF_ERROR)
            return damagedArchive(path, FileText::tr("its end is missing"));
        if (!hasMoreMembers && status != Z_OK)
            return damagedArchive(path, FileText::tr("it is damaged"));
    }
    bytes.truncate(PpdLimits::bytes + 1);
    return bytes;
}

Failure<PpdFault> notRegular(const QString &path, mode_t mode)
{
    return failure(
        PpdFault::NotReadable,
        S_ISDIR(mode)
            ? FileText::tr("\"%1\" is a directory. Name the PPD file itself.")
            : FileText::tr("\"%1\" is a device or a pipe, not a file. Name the printer's PPD file."),
        path);
}

} // namespace

Failure<PpdFault> ppdNotReadable(const QString &name, int error)
{
    if (error == ENOENT && isForeignName(name))
        return {PpdFault::NotFound, foreignNameText(name), {}};
    if (error == ENOENT || error == ENOTDIR)
        return failure(PpdFault::NotFound, FileText::tr("There is no PPD \"%1\". Check the path."), name);
    return {PpdFault::NotReadable,
            FileText::tr("The PPD \"%1\" cannot be read: %2. Check the file and its permissions.")
                .arg(plainText(name, 300), qt_error_string(error)),
            {}};
}

Result<QByteArray, PpdFault> readPpdFile(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return ppdNotReadable(path, ENOENT);
    const QByteArray nativePath = QFile::encodeName(path);
    struct stat status = {};
    // Opening a device may already have an effect, so check the path first.
    if (::stat(nativePath.constData(), &status) != 0)
        return ppdNotReadable(path, errno);
    if (!S_ISREG(status.st_mode))
        return notRegular(path, status.st_mode);
    const FileDescriptor file(::open(nativePath.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
        return ppdNotReadable(path, errno);
    if (!S_ISREG(status.st_mode))
        return notRegular(path, status.st_mode);

    // Reading one byte more than allowed detects a file that is too large, even if it grows meanwhile.
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
    return bytes.startsWith(gzipMagic) ? expanded(bytes, path) : Result<QByteArray, PpdFault>(bytes);
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
