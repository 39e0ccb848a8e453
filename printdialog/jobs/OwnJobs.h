// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "OwnJob.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace printdialog {

class BoundedWorker;

/// Watches the user's jobs on the print server, and acts on them. Lives on the thread that made it, which
/// needs an event loop; the server is asked on a worker thread, so that no call blocks, whatever the server
/// does.
class OwnJobs : public QObject
{
    Q_OBJECT

public:
    /// @param destination a printer's address: its jobs; otherwise those of all queues
    /// @param interval between two looks
    explicit OwnJobs(const Destination &destination, QObject *parent = nullptr,
                     std::chrono::milliseconds interval = std::chrono::seconds(2));
    /// What is being done is given up.
    ~OwnJobs() override;

    void start();
    const QList<OwnJob> &jobs() const { return jobs_; }
    /// Whether act() was called and acted() has not followed yet.
    bool isActing() const { return isActing_; }
    /// Acts on one job after the other, and looks again. A server that does not answer ends it. Not while it
    /// acts.
    void act(JobAct act, const QList<OwnJob> &jobs);

Q_SIGNALS:
    /// The server has answered: see jobs().
    void listed();
    /// The server cannot be asked for the jobs: one sentence. The jobs stay; it is asked again.
    void failed(const QString &text);
    /// @param failure why it was not done to some of the jobs, in a sentence or two; empty when it was
    void acted(const QString &failure);

private:
    struct Order;

    void begin(const Order &order);
    void end(const QString &failure);
    void note(const Result<QList<OwnJob>, QueueFault> &found);
    void giveUp();

    Destination destination_;
    QTimer pause_;
    QTimer watch_; ///< ends the wait for a worker that does not end by itself
    std::shared_ptr<BoundedWorker> worker_;
    QList<OwnJob> jobs_;
    bool isActing_ = false;
};

} // namespace printdialog
