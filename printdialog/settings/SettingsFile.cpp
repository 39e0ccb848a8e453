// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SettingsFile.h"

#include "AtomicFiles.h"
#include "FileLock.h"
#include "FileName.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr qsizetype largestFile = qsizetype(1024) * 1024;
constexpr auto lockPatience = 1s;

constexpr auto ownersFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

bool makeFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString above = QFileInfo(path).path();
    return (above == path || makeFolder(above)) &&
           (QDir().mkdir(path, ownersFolder) || QFileInfo(path).isDir());
}

/// Where a link leads to, the file itself otherwise: a link stays one.
QString fileItself(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isSymLink())
        return path;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

/// 0, or the system's error number. Reads one byte too many from a file that is too large.
int readAll(const pdekit::FileDescriptor &file, QByteArray &content)
{
    content.resize(largestFile + 1);
    qsizetype size = 0;
    while (size < content.size()) {
        const ssize_t count =
            ::read(file.number(), content.data() + size, static_cast<std::size_t>(content.size() - size));
        if (count < 0 && errno != EINTR)
            return errno;
        if (count == 0)
            break;
        size += std::max<ssize_t>(count, 0);
    }
    content.truncate(size);
    content.squeeze();
    return 0;
}

/// Nothing, or why the file has not its new content.
std::optional<QString> replace(const QString &path, const QByteArray &content)
{
    const auto reasonOf = [](const Failure<OutputFault> &failure) {
        return failure.detail.isEmpty() ? failure.text : failure.detail;
    };
    const QFileInfo info(path);
    if (info.exists() && !info.isWritable())
        return qt_error_string(EACCES);
    auto files = AtomicFiles::open(info.path());
    if (!files)
        return reasonOf(files.failure());
    const auto device = files->add(info.fileName(), AtomicFiles::Access::OwnerOnly);
    if (!device)
        return reasonOf(device.failure());
    (*device)->write(content);
    const auto paths = files->commit();
    return paths ? std::nullopt : std::optional(reasonOf(paths.failure()));
}

} // namespace

Result<QByteArray, SettingsFault> SettingsFile::read(const QString &path)
{
    const auto failure = [&path](const QString &reason) {
        return Failure<SettingsFault>{
            SettingsFault::NotReadable,
            tr("The file %1 cannot be read: %2. Make it readable, or move it away.").arg(path, reason),
            {}};
    };
    // Never waits for a pipe, nor reads a device without end.
    const pdekit::FileDescriptor file(
        ::open(bytesOfFileName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen() && (errno == ENOENT || errno == ENOTDIR))
        return QByteArray();
    if (!file.isOpen())
        return failure(qt_error_string(errno));
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
        return failure(qt_error_string(errno));
    if (!S_ISREG(status.st_mode))
        return failure(tr("it is not a file"));
    // A file that was not read to its end is never taken for a shorter one: what follows would be written
    // over.
    QByteArray content;
    if (const int error = readAll(file, content))
        return failure(qt_error_string(error));
    if (content.size() > largestFile)
        return failure(tr("it is too large"));
    return content;
}

SettingsFailure SettingsFile::change(const QString &path, const Change &change)
{
    const auto failure = [&path](SettingsFault fault, const QString &reason) {
        return Failure<SettingsFault>{
            fault,
            tr("Nothing could be saved in %1: %2. Make room there, or make it writable.").arg(path, reason),
            {}};
    };
    const QString folder = QFileInfo(path).path();
    if (!makeFolder(folder))
        return failure(SettingsFault::NotWritable, tr("the folder cannot be made"));
    FileLock lock(path + QLatin1String(".lock"));
    const int lockError = lock.take(lockPatience);
    if (lockError == EWOULDBLOCK)
        return Failure<SettingsFault>{
            SettingsFault::Busy,
            tr("Nothing could be saved in %1: another program is writing there. Try again.").arg(path),
            {}};
    if (lockError != 0)
        return failure(SettingsFault::NotWritable, qt_error_string(lockError));
    const auto before = read(path);
    if (!before)
        return before.failure();
    const auto after = change(*before);
    if (!after)
        return after.failure();
    if (*after == *before && QFileInfo::exists(path))
        return std::nullopt;
    if (const auto reason = replace(fileItself(path), *after))
        return failure(SettingsFault::NotWritable, *reason);
    return std::nullopt;
}

} // namespace printdialog
