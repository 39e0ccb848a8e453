// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterFinder.h"

#include "PrinterLister.h"
#include "QueueList.h"
#include "UserDestinations.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

/// Later than the window's first paint, which the lister would delay.
constexpr auto watchingDelay = 300ms;

QList<Queue> listed(const Queue &queue)
{
    QList<Queue> all = withInstances({queue}, UserDestinations::read().instances);
    for (Queue &each : all)
        each.isDefault = queue.isDefault && each.instance.isEmpty();
    return all;
}

/// Whether a lasting queue, by its key, is for the printer.
template <class Keys>
bool isTaken(const AnnouncedPrinter &printer, const Keys &keys)
{
    return std::any_of(printer.keys.cbegin(), printer.keys.cend(),
                       [&keys](const QString &key) { return keys.contains(key); });
}

/// The server's record of a temporary queue as that of its printer.
Queue joined(Queue queue, const Queue &announced)
{
    queue.info = announced.info;
    queue.deviceUri = announced.deviceUri;
    if (queue.location.isEmpty())
        queue.location = announced.location;
    return queue;
}

} // namespace

QList<Queue> withAnnounced(const QList<Queue> &queues, const AnnouncedServices &services)
{
    QStringList taken;
    QSet<QString> temporary;
    for (const Queue &queue : queues) {
        if (queue.isAnnounced)
            temporary.insert(queue.name);
        else
            taken += printerKeys(queue);
    }
    const QSet<QString> keys(taken.cbegin(), taken.cend());
    QList<Queue> all;
    for (const Queue &queue : queues) {
        const auto printer = queue.isAnnounced ? services.printer(queue.name) : std::nullopt;
        if (!printer)
            all.append(queue);
        else if (!isTaken(*printer, keys))
            all.append(joined(queue, printer->queue));
    }
    for (const QString &name : services.names()) {
        const auto printer = services.printer(name);
        if (!temporary.contains(name) && !isTaken(*printer, keys))
            all += listed(printer->queue);
    }
    return all;
}

PrinterFinder::PrinterFinder(QObject *parent)
    : QObject(parent)
    , network_(printerListProgram())
{
    watching_.setSingleShot(true);
    watching_.setInterval(watchingDelay);
    connect(&watching_, &QTimer::timeout, this, &PrinterFinder::watchNetwork);
    connect(&finder_, &QueueFinder::queueFound, this, &PrinterFinder::addQueue);
    connect(&finder_, &QueueFinder::queueRemoved, this, &PrinterFinder::removeQueue);
    connect(&finder_, &QueueFinder::failed, this, &PrinterFinder::failed);
    // Without a server there would be no queue to print on.
    connect(&finder_, &QueueFinder::answered, this, [this] {
        if (!network_.isStarted() && !watching_.isActive())
            watching_.start();
    });
    connect(&finder_, &QueueFinder::finished, this, [this] {
        isSearched_ = true;
        if (watching_.isActive() && !awaited_.isEmpty())
            watchNetwork();
        endSearch();
    });
    connect(&network_, &AnnouncedPrinters::changed, this, &PrinterFinder::updateAnnounced);
    connect(&network_, &AnnouncedPrinters::lookedOnce, this, &PrinterFinder::endSearch);
}

void PrinterFinder::start(const QSet<QString> &awaited)
{
    awaited_ = awaited;
    finder_.start();
}

void PrinterFinder::watchNetwork()
{
    watching_.stop();
    if (isPrintServerHere())
        network_.start();
}

QString PrinterFinder::whyIncomplete() const
{
    return network_.firstLook() ? printdialog::whyIncomplete(*network_.firstLook()) : QString();
}

void PrinterFinder::endSearch()
{
    const bool isLooking = network_.isStarted() && !network_.firstLook();
    if (isFinished_ || !isSearched_ || (isLooking && !awaited_.isEmpty()))
        return;
    isFinished_ = true;
    Q_EMIT finished();
}

// The server's queues

void PrinterFinder::addQueue(const Queue &queue)
{
    awaited_.remove(queue.name);
    // The instances of a temporary queue are those of its printer.
    if (queue.isAnnounced && !queue.instance.isEmpty())
        return;
    const QStringList before = keysOf(queue.id());
    queues_.insert(queue.id(), queue);
    const QStringList after = keysOf(queue.id());
    if (before != after) {
        changeKeys(before, -1);
        changeKeys(after, 1);
    }
    if (queue.isAnnounced)
        showAnnounced(queue.name);
    else
        Q_EMIT queueFound(queue);
    if (before != after)
        updateHidden(before + after);
}

void PrinterFinder::removeQueue(const QString &id)
{
    if (!queues_.contains(id))
        return;
    const QStringList keys = keysOf(id);
    const Queue queue = queues_.take(id);
    changeKeys(keys, -1);
    showAnnounced(queue.name);
    if (!queue.isAnnounced && !isShownAnnounced(id))
        Q_EMIT queueRemoved(id);
    updateHidden(keys);
}

/// What the server's queue takes from the announced printers.
QStringList PrinterFinder::keysOf(const QString &id) const
{
    const auto queue = queues_.constFind(id);
    return queue == queues_.cend() || queue->isAnnounced || !queue->instance.isEmpty() ? QStringList()
                                                                                       : printerKeys(*queue);
}

bool PrinterFinder::isShownAnnounced(const QString &id) const
{
    const QList<Queue> shown = shown_.value(Destination(id).queue);
    return std::any_of(shown.cbegin(), shown.cend(), [&id](const Queue &each) { return each.id() == id; });
}

// Announced printers

void PrinterFinder::updateAnnounced(const QString &name)
{
    if (const auto printer = network_.services().printer(name)) {
        announcedKeys_.insert(name, printer->keys);
        withdrawn_.remove(name);
        awaited_.remove(name);
    } else if (announcedKeys_.remove(name)) {
        withdrawn_.insert(name);
    }
    showAnnounced(name);
    endSearch();
}

/// What is shown of the printer: nothing beside a lasting queue for it; else its temporary queue, or what it
/// announces.
QList<Queue> PrinterFinder::announced(const QString &name) const
{
    const auto printer = network_.services().printer(name);
    const auto queue = queues_.constFind(name);
    const bool hasQueue = queue != queues_.cend();
    if ((hasQueue && !queue->isAnnounced) || (printer && isTaken(*printer, keys_)))
        return {};
    if (printer)
        return listed(hasQueue ? joined(*queue, printer->queue) : printer->queue);
    // The server removes the queue of a printer that is gone only later.
    return hasQueue && !withdrawn_.contains(name) ? listed(*queue) : QList<Queue>();
}

void PrinterFinder::showAnnounced(const QString &name)
{
    const QList<Queue> now = announced(name);
    const QList<Queue> before = shown_.take(name);
    if (!now.isEmpty())
        shown_.insert(name, now);
    for (const Queue &queue : now) {
        if (!before.contains(queue))
            Q_EMIT queueFound(queue);
    }
    for (const Queue &queue : before) {
        const auto lasting = queues_.constFind(queue.id());
        if (!isShownAnnounced(queue.id()) && (lasting == queues_.cend() || lasting->isAnnounced))
            Q_EMIT queueRemoved(queue.id());
    }
}

void PrinterFinder::changeKeys(const QStringList &keys, int step)
{
    for (const QString &key : keys) {
        int &count = keys_[key];
        count += step;
        if (count == 0)
            keys_.remove(key);
    }
}

/// Decides again about the printers that have one of the keys.
void PrinterFinder::updateHidden(const QStringList &keys)
{
    QStringList concerned;
    for (auto printer = announcedKeys_.cbegin(); printer != announcedKeys_.cend(); ++printer) {
        if (std::any_of(keys.cbegin(), keys.cend(),
                        [&](const QString &key) { return printer->contains(key); }))
            concerned.append(printer.key());
    }
    for (const QString &name : std::as_const(concerned))
        showAnnounced(name);
}

} // namespace printdialog
