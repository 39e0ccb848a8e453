// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SettingsFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <unistd.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr qsizetype largestFile = qsizetype(1024) * 1024;
constexpr auto lockPatience = 1s;
/// The age at which an empty lock file is stale: its writer was killed while creating it. One with content is
/// stale as soon as its writer has ended.
constexpr auto staleLock = 500ms;

constexpr auto ownersFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr auto ownersFolder = ownersFile | QFile::ExeOwner;

bool makeFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString above = QFileInfo(path).path();
    return (above == path || makeFolder(above)) &&
           (QDir().mkdir(path, ownersFolder) || QFileInfo(path).isDir());
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
    const QFileInfo info(path);
    if (!info.exists())
        return QByteArray();
    if (!info.isFile()) // reading a pipe could block, and a device may never end
        return failure(tr("it is not a file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    const QByteArray content = file.read(largestFile + 1);
    // Never treat a partly read file as a shorter one: a change would then drop the rest.
    if (file.error() != QFile::NoError)
        return failure(file.errorString());
    if (content.size() > largestFile)
        return failure(tr("it is too large"));
    return content;
}

std::optional<QString> SettingsFile::replace(const QString &path, const QByteArray &content)
{
    const QFileInfo info(path);
    if (!makeFolder(info.path()))
        return tr("the folder cannot be made");
    if (info.exists() && !info.isWritable())
        return qt_error_string(EACCES);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || (!info.exists() && !file.setPermissions(ownersFile)))
        return file.errorString();
    // Check both here, since commit() does not: the write of the last part, and fsync(2), by which network
    // file systems report that they could not store the data.
    if (file.write(content) != content.size() || !file.flush())
        return file.errorString();
    if (::fsync(file.handle()) != 0)
        return qt_error_string(errno);
    return file.commit() ? std::nullopt : std::optional(file.errorString());
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
    QLockFile lock(path + QLatin1String(".lock"));
    lock.setStaleLockTime(staleLock);
    if (!lock.tryLock(lockPatience)) {
        if (lock.error() == QLockFile::LockFailedError)
            return Failure<SettingsFault>{
                SettingsFault::Busy,
                tr("Nothing could be saved in %1: another program is writing there. Try again.").arg(path),
                {}};
        return failure(SettingsFault::NotWritable,
                       qt_error_string(lock.error() == QLockFile::PermissionError ? EACCES : ENOSPC));
    }
    const auto before = read(path);
    if (!before)
        return before.failure();
    const auto after = change(*before);
    if (!after)
        return after.failure();
    if (*after == *before && QFileInfo::exists(path))
        return std::nullopt;
    if (const auto reason = replace(path, *after))
        return failure(SettingsFault::NotWritable, *reason);
    return std::nullopt;
}

} // namespace printdialog
