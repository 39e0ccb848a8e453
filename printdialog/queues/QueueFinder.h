// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <memory>
#include <optional>

namespace printdialog {

class BoundedWorker;

/// Finds the queues of the print server and keeps watching for added, changed and removed ones. Lives on the
/// thread that made it, which needs an event loop; libcups is called on one worker thread. No call blocks,
/// whatever the server does: stop() and the destructor wait at most 50 ms.
class QueueFinder : public QObject
{
    Q_OBJECT

public:
    /// @param interval between two requests to the server
    explicit QueueFinder(QObject *parent = nullptr,
                         std::chrono::milliseconds interval = std::chrono::seconds(5));
    ~QueueFinder() override;

    /// Starts, and signals every queue again. Does nothing while it runs.
    void start();
    /// Stops: no signal follows until start().
    void stop();

    /// The queues found so far, in the server's order.
    QList<Queue> queues() const { return queues_; }
    /// The user's default queue, or else the server's, as far as it was found.
    std::optional<Destination> defaultQueue() const;
    /// Whether this machine has no print server and no other one is configured.
    bool isWithoutPrintServer() const { return isWithoutPrintServer_; }

Q_SIGNALS:
    /// A queue appeared, or something about it changed (its state, its description, whether it is the
    /// default).
    void queueFound(const printdialog::Queue &queue);
    void queueRemoved(const QString &id);
    /// The first request is over, with or without success. Emitted once after each start().
    void finished();
    /// The server has answered, after the signals about queues.
    void answered();
    /// The server cannot be reached; emitted once per reason. Queues already found stay, since it may come
    /// back.
    void failed(const QString &text);

private:
    void applyQueues(const QList<Queue> &queues);
    void reportFailure(const QString &text, bool isWithoutPrintServer);
    void endFirstLook();

    std::chrono::milliseconds interval_;
    QTimer firstLook_; // ends the first request when the worker does not
    bool firstLookPending_ = false;
    std::shared_ptr<BoundedWorker> worker_; // null when stopped; may outlive this object without using it
    QList<Queue> queues_;
    QString lastFailure_;
    bool isWithoutPrintServer_ = false;
};

} // namespace printdialog
