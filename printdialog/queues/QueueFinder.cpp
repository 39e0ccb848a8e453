// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueFinder.h"

#include "BoundedWorker.h"
#include "Logins.h"
#include "QueueList.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto answerLimit = 5s;
/// For waits that no limit of libcups covers: the look-up of a server's name, an answer that never ends.
constexpr auto firstLookLimit = 8s;
/// Long enough for an idle worker to end normally, too short to be noticed.
constexpr auto listEndPatience = 50ms;

/// For look-ups by id: a server may have thousands of queues.
QHash<QString, Queue> byId(const QList<Queue> &queues)
{
    QHash<QString, Queue> found;
    for (const Queue &queue : queues)
        found.insert(queue.id(), queue);
    return found;
}

} // namespace

QueueFinder::QueueFinder(QObject *parent, std::chrono::milliseconds interval)
    : QObject(parent)
    , interval_(interval)
{
    firstLook_.setSingleShot(true);
    firstLook_.setInterval(firstLookLimit);
    connect(&firstLook_, &QTimer::timeout, this, [this] {
        if (Logins::ofRun().isAsking())
            firstLook_.start();
        else
            reportFailure(queueFailure(QueueFault::TimedOut, {}).text, false);
    });
}

QueueFinder::~QueueFinder()
{
    stop();
}

void QueueFinder::start()
{
    if (worker_)
        return;
    queues_.clear();
    lastFailure_.clear();
    firstLookPending_ = true;
    firstLook_.start();
    worker_ = std::make_shared<BoundedWorker>(this);
    worker_->run([this, interval = interval_](BoundedWorker &self) {
        // `this` is only captured here: posted calls run on its thread, and never after its destruction.
        do {
            auto swept = sweepQueues(answerLimit, self.cancelFlag());
            if (swept)
                self.post([this, queues = *swept] { applyQueues(queues); });
            else
                self.post([this, text = swept.failure().text,
                           isAbsent = printdialog::isWithoutPrintServer(swept.failure())] {
                    reportFailure(text, isAbsent);
                });
        } while (self.pause(interval));
    });
}

void QueueFinder::stop()
{
    firstLook_.stop();
    if (const auto worker = std::exchange(worker_, nullptr))
        worker->release(listEndPatience);
}

std::optional<Destination> QueueFinder::defaultQueue() const
{
    return printdialog::defaultQueue(queues_);
}

void QueueFinder::applyQueues(const QList<Queue> &queues)
{
    // A slot may stop, restart or destroy this object; then the remaining signals are outdated.
    const QPointer<QueueFinder> self(this);
    const auto worker = worker_;
    const auto isCurrent = [&] {
        return self && worker_ == worker;
    };
    const QList<Queue> before = std::exchange(queues_, queues);
    const QHash<QString, Queue> earlier = byId(before);
    const QHash<QString, Queue> later = byId(queues);
    lastFailure_.clear();
    isWithoutPrintServer_ = false;
    // Backwards, so that a receiver's list need not shift its entries for each removal.
    for (auto queue = before.crbegin(); queue != before.crend(); ++queue) {
        if (isCurrent() && !later.contains(queue->id()))
            Q_EMIT queueRemoved(queue->id());
    }
    for (const Queue &queue : queues) {
        const auto known = earlier.constFind(queue.id());
        if (isCurrent() && (known == earlier.cend() || *known != queue))
            Q_EMIT queueFound(queue);
    }
    if (isCurrent())
        Q_EMIT answered();
    if (isCurrent())
        endFirstLook();
}

void QueueFinder::reportFailure(const QString &text, bool isWithoutPrintServer)
{
    isWithoutPrintServer_ = isWithoutPrintServer;
    const QPointer<QueueFinder> self(this);
    const auto worker = worker_;
    if (text != std::exchange(lastFailure_, text))
        Q_EMIT failed(text);
    if (self && worker_ == worker)
        endFirstLook();
}

void QueueFinder::endFirstLook()
{
    if (std::exchange(firstLookPending_, false)) {
        firstLook_.stop();
        Q_EMIT finished();
    }
}

} // namespace printdialog
