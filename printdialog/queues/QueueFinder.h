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

/// Finds the queues of the print server, and keeps watching for those that come and go. Everything about it
/// happens on the thread that made it, where it needs an event loop; libcups is called on one worker thread
/// of its own. No call blocks, whatever the server does: stop() and the destructor wait a twentieth of a
/// second at most.
class QueueFinder : public QObject
{
    Q_OBJECT

public:
    /// @param interval between two looks at the server
    explicit QueueFinder(QObject *parent = nullptr,
                         std::chrono::milliseconds interval = std::chrono::seconds(5));
    ~QueueFinder() override;

    /// Starts, and announces every queue anew; nothing when it runs already.
    void start();
    /// Stops: no signal comes any more until start().
    void stop();

    /// What was found so far, in the server's order.
    QList<Queue> queues() const { return queues_; }
    /// The user's default queue, or else the server's, as far as it was found.
    std::optional<Destination> defaultQueue() const;
    /// Whether this machine has no print server, and nobody has named another one.
    bool isWithoutPrintServer() const { return isWithoutPrintServer_; }

Q_SIGNALS:
    /// A queue appeared, or something about it changed (its state, its description, whether it is the
    /// default).
    void queueFound(const printdialog::Queue &queue);
    void queueRemoved(const QString &id);
    /// The first look is over, with or without success. Once after each start().
    void finished();
    /// The server cannot be asked; said once per reason. Queues already found stay: it may come back.
    void failed(const QString &text);

private:
    void takeQueues(const QList<Queue> &queues);
    void takeFailure(const QString &text, bool isWithoutPrintServer);
    void endFirstLook();

    std::chrono::milliseconds interval_;
    QTimer firstLook_; // ends the first look when the worker does not
    bool firstLookPending_ = false;
    std::shared_ptr<BoundedWorker>
        worker_; // null when stopped; may outlive this object, and then leaves it alone
    QList<Queue> queues_;
    QString lastFailure_;
    bool isWithoutPrintServer_ = false;
};

} // namespace printdialog
