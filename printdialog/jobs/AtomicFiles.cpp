// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AtomicFiles.h"

#include "DescriptorDevice.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace printdialog {
namespace {

Q_LOGGING_CATEGORY(jobsLog, "printdialog.jobs", QtWarningMsg)

QByteArray hiddenName()
{
    return ".corvel-print-" + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
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
    files.folder_ = QDir::cleanPath(QDir(folder).absolutePath());
    if (const int error = files.makeFolders())
        return outputFailure(error, files.folder_);
    files.descriptor_ = FileDescriptor(::open(QFile::encodeName(files.folder_).constData(),
                                              O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
    if (!files.descriptor_.isValid())
        return outputFailure(errno, files.folder_);
    return files;
}

int AtomicFiles::makeFolders()
{
    std::vector<QByteArray> missing;
    struct stat status = {};
    for (QString path = folder_; ::stat(QFile::encodeName(path).constData(), &status) != 0;
         path.truncate(std::max<qsizetype>(1, path.lastIndexOf(QLatin1Char('/'))))) {
        if (errno != ENOENT || path.size() <= 1)
            return errno;
        missing.push_back(QFile::encodeName(path));
    }
    for (auto path = missing.rbegin(); path != missing.rend(); ++path) {
        if (::mkdir(path->constData(), 0777) == 0)
            madeFolders_.push_back(*path);
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
    // A name that is too long is better known before the work than after it.
    struct stat status = {};
    if (::fstatat(descriptor_.value(), file.name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0 &&
        errno != ENOENT)
        return outputFailure(errno, pathOf(file.name));

    file.temporary = hiddenName();
    FileDescriptor descriptor(::openat(descriptor_.value(), file.temporary.constData(),
                                       O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
    if (!descriptor.isValid())
        return outputFailure(errno, pathOf(file.name));
    file.device = std::make_unique<DescriptorDevice>(std::move(descriptor));
    files_.push_back(std::move(file));
    return files_.back().device.get();
}

QString AtomicFiles::pathOf(const QByteArray &name) const
{
    return QDir(folder_).filePath(QFile::decodeName(name));
}

std::optional<Failure<OutputFault>> AtomicFiles::writeFailure() const
{
    const auto failed = std::find_if(files_.begin(), files_.end(),
                                     [](const File &file) { return file.device->error() != 0; });
    if (failed == files_.end())
        return std::nullopt;
    return outputFailure(failed->device->error(), pathOf(failed->name));
}

Result<QStringList, OutputFault> AtomicFiles::commit()
{
    for (const File &file : files_) {
        if (const int error = file.device->finish())
            return outputFailure(error, pathOf(file.name));
    }
    QStringList paths;
    for (File &file : files_) {
        if (const int error = putInPlace(file)) {
            auto failure = outputFailure(error, pathOf(file.name));
            discard();
            return failure;
        }
        paths += pathOf(file.name);
    }
    for (const File &file : files_) {
        if (!file.earlier.isEmpty())
            ::unlinkat(descriptor_.value(), file.earlier.constData(), 0);
    }
    ::fsync(descriptor_.value());
    files_.clear();
    madeFolders_.clear();
    return paths;
}

/// Answers the system's error number, or 0.
int AtomicFiles::putInPlace(File &file) const
{
    const int folder = descriptor_.value();
    struct stat status = {};
    const bool exists = ::fstatat(folder, file.name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    if (exists && !S_ISDIR(status.st_mode)) {
        const QByteArray aside = hiddenName();
        if (::renameat(folder, file.name.constData(), folder, aside.constData()) != 0)
            return errno;
        file.earlier = aside;
    }
    // A folder is never moved out of the way: the renaming refuses.
    if (::renameat(folder, file.temporary.constData(), folder, file.name.constData()) != 0)
        return errno;
    file.isInPlace = true;
    return 0;
}

void AtomicFiles::takeBack(File &file) const
{
    const int folder = descriptor_.value();
    ::unlinkat(folder, (file.isInPlace ? file.name : file.temporary).constData(), 0);
    if (!file.earlier.isEmpty() &&
        ::renameat(folder, file.earlier.constData(), folder, file.name.constData()) != 0)
        qCWarning(jobsLog, "%s is left as %s: %s", qUtf8Printable(pathOf(file.name)),
                  file.earlier.constData(), qUtf8Printable(qt_error_string(errno)));
}

void AtomicFiles::discard()
{
    for (File &file : files_)
        takeBack(file);
    files_.clear();
    // Only empty folders go, so whatever another program has put there meanwhile stays.
    for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder)
        ::rmdir(folder->constData());
    madeFolders_.clear();
}

} // namespace printdialog
