// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SettingsFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QSaveFile>

namespace printdialog {

namespace {

constexpr qint64 largestFile = 1024 * 1024;
constexpr int lockPatience = 1000; // ms

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
    const QFileInfo info(path);
    if (!info.exists())
        return QByteArray();
    QFile file(path);
    const auto failure = [&path](const QString &reason) {
        return Failure<SettingsFault>{
            SettingsFault::NotReadable,
            tr("The file %1 cannot be read: %2. Make it readable, or move it away.").arg(path, reason),
            {}};
    };
    // Never waits for a pipe, nor reads a device without end.
    if (!info.isFile())
        return failure(tr("it is no file"));
    if (info.size() > largestFile)
        return failure(tr("it is too large"));
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    return file.read(largestFile);
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
    if (!lock.tryLock(lockPatience)) {
        if (lock.error() != QLockFile::LockFailedError)
            return failure(SettingsFault::NotWritable, tr("the folder cannot be written"));
        return Failure<SettingsFault>{
            SettingsFault::Busy,
            tr("Nothing could be saved in %1: another program is writing there. Try again.").arg(path),
            {}};
    }
    const auto before = read(path);
    if (!before)
        return before.failure();
    const auto after = change(*before);
    if (!after)
        return after.failure();
    if (*after == *before && QFileInfo::exists(path))
        return std::nullopt;
    // Flushed by hand: commit() does not notice that what was still in its buffer could not be written.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(ownersFile) ||
        file.write(*after) != after->size() || !file.flush() || !file.commit())
        return failure(SettingsFault::NotWritable, file.errorString());
    return std::nullopt;
}

} // namespace printdialog
