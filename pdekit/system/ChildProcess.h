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

/// A child process. It starts with default signal dispositions, an empty signal mask, and no descriptors but
/// its three standard ones. It is reaped as soon as it ends, or with this object, which takes it down within
/// a bounded time when it still runs. Main thread only.
class PDEKIT_EXPORT ChildProcess
{
public:
    ChildProcess();
    ~ChildProcess();
    Q_DISABLE_COPY_MOVE(ChildProcess)

    void setLaunchPath(const QString &path) { path_ = path; }
    void setArguments(const QStringList &arguments) { arguments_ = arguments; }
    /// The descriptors that become the child's; those not set are inherited. Closed here once the child has
    /// them.
    void setStandardInput(FileDescriptor descriptor) { standardInput_ = std::move(descriptor); }
    void setStandardOutput(FileDescriptor descriptor) { standardOutput_ = std::move(descriptor); }
    void setStandardError(FileDescriptor descriptor) { standardError_ = std::move(descriptor); }

    /// Starts the child. Throws PlatformException when it cannot be started.
    void launch();
    bool isRunning();
    /// Sends SIGINT, if the child runs.
    void interrupt();
    /// Interrupts the child, waits for its end, and kills it when that does not come in time. One that not
    /// even that ends at once (the kernel waits for a device) is reaped later.
    void takeDown(std::chrono::milliseconds patience);
    pid_t processIdentifier() const { return pid_; }

    /// Lets the child go on without an owner; it is reaped when it ends.
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
    std::unique_ptr<QObject> endWatcher_; ///< tells the event loop that the child has ended
    pid_t pid_ = -1;                      ///< of the child until it is reaped
    bool isLeftToItself_ = false;
};

} // namespace pdekit
