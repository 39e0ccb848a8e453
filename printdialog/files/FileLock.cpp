// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FileLock.h"

#include "FileName.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>

namespace printdialog {

namespace {

constexpr unsigned long pause = 5; // milliseconds

} // namespace

FileLock::FileLock(const QString &path)
    : path_(bytesOfFileName(path))
{
}

FileLock::~FileLock()
{
    if (descriptor_.isOpen())
        ::unlink(path_.constData());
}

int FileLock::take(std::chrono::milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    int error = tryOnce();
    while (error == EWOULDBLOCK && !deadline.hasExpired()) {
        QThread::msleep(pause);
        error = tryOnce();
    }
    return error;
}

int FileLock::tryOnce()
{
    pdekit::FileDescriptor file(
        ::open(path_.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return errno;
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0)
        return errno;
    // Whoever had it may have removed the file meanwhile: then this is the lock on nothing.
    struct stat locked = {};
    struct stat named = {};
    if (::fstat(file.number(), &locked) != 0 || ::stat(path_.constData(), &named) != 0 ||
        locked.st_ino != named.st_ino || locked.st_dev != named.st_dev)
        return EWOULDBLOCK;
    descriptor_ = std::move(file);
    return 0;
}

} // namespace printdialog
