// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OwnJobs.h"

#include "BoundedWorker.h"
#include "CupsConnection.h"

#include <QtCore/QCoreApplication>

#include <utility>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto answerLimit = 5s;
/// For waits that no limit of libcups covers, such as the look-up of a server's name.
constexpr auto watchLimit = 8s;

} // namespace

struct OwnJobs::Order
{
    JobAct act = JobAct::Cancel;
    QList<OwnJob> jobs; ///< empty: only look
};

OwnJobs::OwnJobs(const Destination &destination, QObject *parent, std::chrono::milliseconds interval)
    : QObject(parent)
    , destination_(destination)
{
    pause_.setSingleShot(true);
    pause_.setInterval(interval);
    connect(&pause_, &QTimer::timeout, this, [this] { begin({}); });
    watch_.setSingleShot(true);
    watch_.setInterval(watchLimit);
    connect(&watch_, &QTimer::timeout, this, &OwnJobs::giveUp);
}

OwnJobs::~OwnJobs()
{
    if (worker_)
        worker_->release({});
}

void OwnJobs::start()
{
    if (!worker_)
        begin({});
}

void OwnJobs::act(JobAct act, const QList<OwnJob> &jobs)
{
    if (isActing_ || jobs.isEmpty())
        return;
    isActing_ = true;
    Logins::ofRun().forgive();
    begin({act, jobs});
}

/// Takes the place of a look under way, which may wait for a server that does not answer.
void OwnJobs::begin(const Order &order)
{
    pause_.stop();
    watch_.start();
    if (worker_)
        worker_->release({});
    worker_ = std::make_shared<BoundedWorker>(this);
    worker_->run([this, order, destination = destination_](BoundedWorker &self) {
        // `this` is only captured here: posted calls run on its thread, and never after its destruction.
        CupsConnection connection(answerLimit, self.cancelFlag(), PrinterAddress::of(destination.queue));
        int failures = 0;
        QString failure;
        for (const OwnJob &job : order.jobs) {
            self.post([this] { watch_.start(); });
            const auto failed = perform(order.act, job, connection);
            if (failed && failures++ == 0)
                failure = failed->text;
            if (failed && (connection.isBroken() || failed->reason == QueueFault::TimedOut ||
                           failed->reason == QueueFault::NoServer || connection.isCanceled()))
                break;
        }
        if (failures > 1)
            failure = tr("%1 of %2 jobs were left as they are. The first one: %3")
                          .arg(QString::number(failures), QString::number(order.jobs.size()), failure);
        if (!order.jobs.isEmpty())
            self.post([this, failure] { end(failure); });
        self.post([this, found = ownJobs(connection, destination)] { note(found); });
    });
}

void OwnJobs::end(const QString &failure)
{
    watch_.start();
    if (std::exchange(isActing_, false))
        Q_EMIT acted(failure);
}

void OwnJobs::note(const Result<QList<OwnJob>, QueueFault> &found)
{
    watch_.stop();
    pause_.start();
    if (!found) {
        Q_EMIT failed(found.failure().text);
        return;
    }
    jobs_ = *found;
    Q_EMIT listed();
}

/// The worker is not replaced before it ends, since the next one would only wait, too.
void OwnJobs::giveUp()
{
    if (Logins::ofRun().isAsking()) {
        watch_.start();
        return;
    }
    const QString text = queueFailure(QueueFault::TimedOut, {}).text;
    if (std::exchange(isActing_, false))
        Q_EMIT acted(text);
    else
        Q_EMIT failed(text);
}

} // namespace printdialog
