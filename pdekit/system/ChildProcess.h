// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "pdekit_export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <memory>
#include <sys/types.h>

class QObject;

namespace pdekit {

/// A child process. It starts with default signal dispositions, an empty signal mask, and only its three
/// standard descriptors. It is reaped as soon as it ends. The destructor ends a running child within a
/// bounded time. Main thread only.
class PDEKIT_EXPORT ChildProcess
{
public:
    ChildProcess();
    ~ChildProcess();
    Q_DISABLE_COPY_MOVE(ChildProcess)

    void setLaunchPath(const QString &path) { path_ = path; }
    void setArguments(const QStringList &arguments) { arguments_ = arguments; }
    /// The child's descriptors; those not set are inherited. They are closed here once the child has them.
    void setStandardInput(FileDescriptor descriptor) { standardInput_ = std::move(descriptor); }
    void setStandardOutput(FileDescriptor descriptor) { standardOutput_ = std::move(descriptor); }
    void setStandardError(FileDescriptor descriptor) { standardError_ = std::move(descriptor); }

    /// Starts the child. Throws PlatformException when it cannot be started.
    void launch();
    bool isRunning();
    /// Sends SIGINT, if the child runs.
    void interrupt();
    /// Interrupts the child, waits for it to end, and kills it when it does not end in time. If even that
    /// does not end it at once (the kernel waits for a device), it is reaped later.
    void takeDown(std::chrono::milliseconds patience);
    pid_t processIdentifier() const { return pid_; }

    /// Lets the child continue without an owner; it is reaped when it ends.
    static void leaveToItself(std::unique_ptr<ChildProcess> child);

private:
    bool endsWithin(std::chrono::milliseconds patience);
    void watchForEnd();
    void stopWatching();
    void noteEnd();

    QString path_;
    QStringList arguments_;
    FileDescriptor standardInput_;
    FileDescriptor standardOutput_;
    FileDescriptor standardError_;
    FileDescriptor pidDescriptor_;
    std::unique_ptr<QObject> endWatcher_; ///< notifies the event loop when the child ends
    pid_t pid_ = -1;                      ///< the child's, until it is reaped
    bool isLeftToItself_ = false;
};

} // namespace pdekit
