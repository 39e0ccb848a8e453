// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FileMove.h"

#include "AtomicFiles.h"
#include "FileDescriptor.h"

#include <QtCore/QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>

namespace printdialog {

namespace {

constexpr int mostNumber = 9999;

/// "photo.jpg" as "photo-2.jpg"; shortened where it would be longer than a name may be.
QByteArray numbered(const QByteArray &name, int number)
{
    if (number == 1)
        return name;
    const qsizetype dot = name.lastIndexOf('.');
    const QByteArray suffix = dot > 0 ? name.mid(dot) : QByteArray();
    const QByteArray ending = '-' + QByteArray::number(number) + suffix;
    QByteArray base = name.chopped(suffix.size());
    base.truncate(std::max<qsizetype>(1, NAME_MAX - ending.size()));
    // Not in the middle of a character of UTF-8.
    while (base.size() + suffix.size() < name.size() && base.size() > 1 &&
           (static_cast<uchar>(name.at(base.size())) & 0xc0) == 0x80)
        base.chop(1);
    return base + ending;
}

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_ino == other.st_ino && one.st_size == other.st_size &&
           one.st_mtim.tv_sec == other.st_mtim.tv_sec && one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
}

/// Not every file system can rename without replacing (rename(2)). @return an errno, or 0
int rename(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    if (::link(from.constData(), to.constData()) == 0)
        return ::unlink(from.constData()) == 0 ? 0 : errno;
    return errno == EEXIST ? EEXIST : EXDEV; // copied where there are no hard links
}

/// Copies the file under the name. @return an errno, or 0
std::optional<Failure<OutputFault>> copy(const QByteArray &from, const QString &folder,
                                         const QByteArray &name)
{
    const pdekit::FileDescriptor source(::open(from.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    struct stat before = {};
    if (!source.isOpen() || ::fstat(source.number(), &before) != 0)
        return outputFailure(errno, QFile::decodeName(from));
    auto files = AtomicFiles::open(folder);
    if (!files)
        return files.failure();
    const auto device = files->add(QFile::decodeName(name));
    if (!device)
        return device.failure();
    std::array<char, 65536> part; // NOLINT(*-member-init): read() fills it
    ssize_t size = 0;
    while ((size = ::read(source.number(), part.data(), part.size())) > 0 &&
           (*device)->write(part.data(), size) == size) {
    }
    if (const auto failure = files->writeFailure())
        return *failure;
    if (size < 0)
        return outputFailure(errno, QFile::decodeName(from));
    const auto paths = files->commit(AtomicFiles::Earlier::Kept);
    if (!paths)
        return paths.failure();
    const QByteArray copied = QFile::encodeName(paths->constFirst());
    const std::array times = {before.st_atim, before.st_mtim};
    ::utimensat(AT_FDCWD, copied.constData(), times.data(), 0);
    // Another photo that has taken its place meanwhile stays, and so does one that has changed.
    struct stat after = {};
    if (::lstat(from.constData(), &after) != 0 || !isSame(before, after))
        return std::nullopt;
    if (::unlink(from.constData()) == 0)
        return std::nullopt;
    const int error = errno;
    ::unlink(copied.constData());
    return outputFailure(error, QFile::decodeName(from));
}

} // namespace

Result<QByteArray, OutputFault> moveInto(const QByteArray &path, const QString &folder)
{
    const QByteArray into = QFile::encodeName(folder);
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    struct stat status = {};
    if (::stat(into.constData(), &status) != 0)
        return outputFailure(errno, folder);
    if (!S_ISDIR(status.st_mode))
        return outputFailure(ENOTDIR, folder);
    for (int number = 1;; ++number) {
        const QByteArray target = numbered(name, number);
        const QByteArray to = into + '/' + target;
        const int error = rename(path, to);
        if (error == 0)
            return to;
        if (error == EXDEV) {
            const auto failure = copy(path, folder, target);
            if (!failure)
                return to;
            if (failure->reason != OutputFault::NameTaken || number == mostNumber)
                return *failure;
        } else if (error != EEXIST || number == mostNumber) {
            return outputFailure(error, error == ENOENT ? QFile::decodeName(path) : QFile::decodeName(to));
        }
    }
}

} // namespace printdialog
