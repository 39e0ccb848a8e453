// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WatchLoop.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace printdialog {

/// Prints the photos that arrive in a folder, on a thread of its own. Signals are emitted on this object's
/// thread, which needs an event loop and never touches the folder: a dead mount does not block it.
class FolderPrinter : public QObject
{
    Q_OBJECT

public:
    explicit FolderPrinter(QObject *parent = nullptr);
    /// Calls stop(), and waits for what is being sent, for a few seconds at most. The thread is then left to
    /// itself; what it still does is recorded as usual.
    ~FolderPrinter() override;

    bool isBusy() const { return shared_ != nullptr; }
    /// Not while busy.
    void start(const WatchOrder &order);
    /// Begins no other photo, gives the one that is being sent a few seconds, and does not wait for jobs that
    /// were sent: the next run of the folder looks after them. Returns at once; finished() follows, unless
    /// the folder does not answer.
    void stop();

Q_SIGNALS:
    /// What goes as it should: a sentence.
    void said(const QString &sentence);
    /// What somebody should look after: a sentence.
    void complained(const QString &sentence);
    /// Empty after stop(); otherwise why the watch has ended.
    void finished(const QString &failure);

private:
    struct Shared;

    void watchOver();

    std::shared_ptr<Shared> shared_; ///< with the thread, which may outlive this object
    QTimer patrol_;
    bool isSilent_ = false; ///< the folder does not answer, and that was said
};

} // namespace printdialog
