// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AtomicFiles.h"

#include "DescriptorDevice.h"
#include "FileName.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>

namespace printdialog {
namespace {

Q_LOGGING_CATEGORY(filesLog, "printdialog.files", QtWarningMsg)

constexpr char hiddenPrefix[] = ".corvel-print-";
constexpr char earlierPrefix[] = ".corvel-print-earlier-"; // begins with the other one
constexpr time_t staleAge = 3600;                          // seconds
constexpr int shareTries = 100;
constexpr useconds_t sharePause = 1000; // microseconds

QByteArray hiddenName(const char *prefix = hiddenPrefix)
{
    return prefix + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
}

/// Removes hidden files that a killed program has left: all of them when no other program works in the
/// folder, else those older than any job takes. The age of a moved earlier file means nothing: it is that of
/// the user's file.
void removeStale(const QString &folder, bool isAlone)
{
    DIR *entries = ::opendir(QFile::encodeName(folder).constData());
    if (!entries)
        return;
    while (const dirent *entry = ::readdir(entries)) {
        struct stat status = {};
        const auto begins = [entry](const char *prefix) {
            return qstrncmp(entry->d_name, prefix, qstrlen(prefix)) == 0;
        };
        if (begins(hiddenPrefix) && (isAlone || !begins(earlierPrefix)) &&
            ::fstatat(::dirfd(entries), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(status.st_mode) && (isAlone || status.st_mtime < ::time(nullptr) - staleAge))
            ::unlinkat(::dirfd(entries), entry->d_name, 0);
    }
    ::closedir(entries);
}

} // namespace

AtomicFiles::AtomicFiles() = default;
AtomicFiles::AtomicFiles(AtomicFiles &&) noexcept = default;

AtomicFiles::~AtomicFiles()
{
    discard();
}

Result<AtomicFiles, OutputFault> AtomicFiles::open(const QString &folder)
{
    AtomicFiles files;
    files.folder_ = QDir(folder).absolutePath();
    if (const int error = files.makeFolders())
        return outputFailure(error, files.folder_);
    files.descriptor_ = pdekit::FileDescriptor(::open(QFile::encodeName(files.folder_).constData(),
                                                      O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
    if (!files.descriptor_.isOpen())
        return outputFailure(errno, files.folder_);
    files.shareFolder();
    return files;
}

// All programs at work in a folder share a lock on it, which the kernel releases when the process ends. On a
// file system without such locks, only the files' age counts.
void AtomicFiles::shareFolder()
{
    const bool isAlone = ::flock(descriptor_.number(), LOCK_EX | LOCK_NB) == 0;
    removeStale(folder_, isAlone);
    // Another program may hold the lock exclusively for a moment while it cleans up.
    for (int tries = 0; ::flock(descriptor_.number(), LOCK_SH | LOCK_NB) != 0; ++tries) {
        if (errno != EWOULDBLOCK || tries == shareTries)
            return;
        ::usleep(sharePause);
    }
}

int AtomicFiles::makeFolders()
{
    std::vector<QByteArray> missing;
    struct stat status = {};
    for (QString path = folder_; ::stat(QFile::encodeName(path).constData(), &status) != 0;
         path.truncate(std::max<qsizetype>(1, path.lastIndexOf(QLatin1Char('/'))))) {
        if (errno != ENOENT || path.size() <= 1)
            return errno;
        if (isForeignName(path)) // a different folder would be created
            return EILSEQ;
        missing.push_back(QFile::encodeName(path));
    }
    std::reverse(missing.begin(), missing.end());
    for (const QByteArray &path : missing) {
        if (::mkdir(path.constData(), 0777) == 0)
            madeFolders_.push_back(path);
        else if (errno != EEXIST)
            return errno;
    }
    return 0;
}

Result<QIODevice *, OutputFault> AtomicFiles::add(const QString &name)
{
    Q_ASSERT(!name.isEmpty() && !name.contains(QLatin1Char('/')));
    File file;
    file.name = QFile::encodeName(name);
    // Detect a name that is too long before the work, not after it.
    struct stat status = {};
    if (::fstatat(descriptor_.number(), file.name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0 &&
        errno != ENOENT)
        return outputFailure(errno, pathOf(file.name));

    constexpr mode_t mode = 0666;
    pdekit::FileDescriptor descriptor(
        ::openat(descriptor_.number(), ".", O_WRONLY | O_TMPFILE | O_CLOEXEC, mode));
    if (!descriptor.isOpen()) {
        file.temporary = hiddenName();
        descriptor =
            pdekit::FileDescriptor(::openat(descriptor_.number(), file.temporary.constData(),
                                            O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    }
    if (!descriptor.isOpen())
        return outputFailure(errno, pathOf(file.name));
    file.device = std::make_unique<DescriptorDevice>(std::move(descriptor));
    files_.push_back(std::move(file));
    return files_.back().device.get();
}

QString AtomicFiles::pathOf(const QByteArray &name) const
{
    return (folder_.endsWith(QLatin1Char('/')) ? folder_ : folder_ + QLatin1Char('/')) +
           QFile::decodeName(name);
}

std::optional<Failure<OutputFault>> AtomicFiles::writeFailure() const
{
    const auto failed = std::find_if(files_.begin(), files_.end(),
                                     [](const File &file) { return file.device->error() != 0; });
    if (failed == files_.end())
        return std::nullopt;
    return outputFailure(failed->device->error(), pathOf(failed->name));
}

Result<QStringList, OutputFault> AtomicFiles::commit(Earlier earlier)
{
    for (File &file : files_) {
        if (const int error = finish(file))
            return outputFailure(error, pathOf(file.name));
    }
    QStringList paths;
    for (File &file : files_) {
        // The last file's predecessor is never put back, since nothing after it can fail.
        if (earlier == Earlier::Replaced && &file != &files_.back())
            keepEarlier(file);
        if (const int error = putInPlace(file, earlier)) {
            auto failure = outputFailure(error, pathOf(file.name));
            discard();
            return failure;
        }
        paths += pathOf(file.name);
    }
    for (const File &file : files_) {
        if (!file.earlier.isEmpty())
            ::unlinkat(descriptor_.number(), file.earlier.constData(), 0);
    }
    ::fsync(descriptor_.number());
    files_.clear();
    madeFolders_.clear();
    return paths;
}

// These return an errno, or 0.

int AtomicFiles::finish(File &file) const
{
    if (file.temporary.isEmpty()) {
        const QByteArray name = hiddenName();
        if (const int error = file.device->link(descriptor_.number(), name))
            return error;
        file.temporary = name;
    }
    return file.device->finish();
}

/// Gives an earlier file a second name, if the file system has hard links.
void AtomicFiles::keepEarlier(File &file) const
{
    const int folder = descriptor_.number();
    struct stat status = {};
    const bool exists = ::fstatat(folder, file.name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    if (!exists || S_ISDIR(status.st_mode))
        return; // folders are never moved: renaming over one fails
    const QByteArray other = hiddenName(earlierPrefix);
    if (::linkat(folder, file.name.constData(), folder, other.constData(), 0) == 0)
        file.earlier = other;
    else
        file.isForGood = true; // not moved, since a process killed in between would leave no file
}

int AtomicFiles::putInPlace(File &file, Earlier earlier) const
{
    const int folder = descriptor_.number();
    const int error = earlier == Earlier::Kept ? putInFreePlace(file)
                      : ::renameat(folder, file.temporary.constData(), folder, file.name.constData()) == 0
                          ? 0
                          : errno;
    file.isInPlace = error == 0;
    return error;
}

/// Not every file system can rename without replacing (rename(2)) or has hard links. Without either, an empty
/// file reserves the name first.
int AtomicFiles::putInFreePlace(const File &file) const
{
    const int folder = descriptor_.number();
    const char *from = file.temporary.constData();
    const char *to = file.name.constData();
    if (::renameat2(folder, from, folder, to, RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    if (::linkat(folder, from, folder, to, 0) == 0) {
        ::unlinkat(folder, from, 0);
        return 0;
    }
    if (errno == EEXIST)
        return errno;
    const pdekit::FileDescriptor held(::openat(folder, to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!held.isOpen())
        return errno;
    if (::renameat(folder, from, folder, to) == 0)
        return 0;
    const int error = errno;
    ::unlinkat(folder, to, 0);
    return error;
}

void AtomicFiles::rollBack(File &file) const
{
    const int folder = descriptor_.number();
    if (!file.isInPlace && !file.temporary.isEmpty())
        ::unlinkat(folder, file.temporary.constData(), 0);
    if (file.earlier.isEmpty()) {
        if (file.isInPlace && !file.isForGood)
            ::unlinkat(folder, file.name.constData(), 0);
        return;
    }
    if (::renameat(folder, file.earlier.constData(), folder, file.name.constData()) != 0) {
        qCWarning(filesLog, "%s is left as %s: %s", qUtf8Printable(pathOf(file.name)),
                  file.earlier.constData(), qUtf8Printable(qt_error_string(errno)));
        return;
    }
    // rename(2) does nothing when both are names of the same file.
    ::unlinkat(folder, file.earlier.constData(), 0);
}

void AtomicFiles::discard()
{
    for (File &file : files_)
        rollBack(file);
    files_.clear();
    // Only empty folders are removed, so files that another program has put there stay.
    std::reverse(madeFolders_.begin(), madeFolders_.end());
    for (const QByteArray &folder : madeFolders_)
        ::rmdir(folder.constData());
    madeFolders_.clear();
}

} // namespace printdialog
