// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <chrono>

namespace printdialog {

/// A lock that one program at a time has, a file of its own. The kernel takes it back from a program that
/// ends, however it ends; only the file then stays, and the next one to take the lock removes it.
class FileLock
{
public:
    explicit FileLock(const QString &path);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock)

    /// 0, or the system's error number: EWOULDBLOCK when another program has had the lock all the time.
    int take(std::chrono::milliseconds patience);

private:
    int tryOnce();

    QByteArray path_;
    pdekit::FileDescriptor descriptor_; ///< open while the lock is held
};

} // namespace printdialog
