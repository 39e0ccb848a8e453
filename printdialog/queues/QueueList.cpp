// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueList.h"

#include "BoundedWorker.h"
#include "CupsConnection.h"
#include "PlainText.h"

#include <algorithm>

namespace printdialog {

namespace {

struct DestinationDeleter
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};

struct Enumeration
{
    QList<Queue> queues;
    int *cancel;
};

Queue::State stateOf(const QByteArray &printerState)
{
    switch (printerState.toInt()) {
    case IPP_PSTATE_IDLE:
        return Queue::State::Idle;
    case IPP_PSTATE_PROCESSING:
        return Queue::State::Processing;
    case IPP_PSTATE_STOPPED:
        return Queue::State::Stopped;
    default:
        return Queue::State::Unknown;
    }
}

QStringList reasonsOf(const QString &keywords)
{
    QStringList reasons = keywords.split(u',', Qt::SkipEmptyParts);
    reasons.removeAll(QStringLiteral("none"));
    return reasons;
}

Queue queueOf(const cups_dest_t &destination)
{
    const auto option = [&destination](const char *name) {
        return QByteArray(cupsGetOption(name, destination.num_options, destination.options));
    };
    const auto text = [&option](const char *name) {
        return plainText(QString::fromUtf8(option(name)).simplified(), shownTextLimit);
    };
    Queue queue;
    queue.name = QString::fromUtf8(destination.name);
    queue.instance = QString::fromUtf8(destination.instance);
    queue.info = text("printer-info");
    if (queue.info.isEmpty())
        queue.info = queue.name;
    queue.location = text("printer-location");
    queue.makeAndModel = text("printer-make-and-model");
    queue.deviceUri = text("device-uri");
    queue.state = stateOf(option("printer-state"));
    queue.stateReasons = reasonsOf(text("printer-state-reasons"));
    queue.acceptsJobs = option("printer-is-accepting-jobs") != "false";
    queue.isDefault = destination.is_default != 0;
    queue.isClass = (option("printer-type").toUInt() & CUPS_PRINTER_CLASS) != 0;
    return queue;
}

int collect(void *userData, unsigned flags, cups_dest_t *destination)
{
    auto *enumeration = static_cast<Enumeration *>(userData);
    const Queue queue = queueOf(*destination);
    // A name that needs cleaning is no queue's: CUPS allows none, and it could not be handed back to the
    // server.
    if (!(flags & CUPS_DEST_FLAGS_REMOVED) && !hasControls(queue.id()))
        enumeration->queues.append(queue);
    return enumeration->cancel && *enumeration->cancel ? 0 : 1;
}

/// Where a queue has instances, the enumeration of CUPS 2.4 marks no default but one from lpoptions. Looking
/// up the unnamed destination finds the others.
void markDefault(QList<Queue> &queues)
{
    const auto isDefault = [](const Queue &queue) {
        return queue.isDefault;
    };
    const auto isInstance = [](const Queue &queue) {
        return !queue.instance.isEmpty();
    };
    if (std::any_of(queues.cbegin(), queues.cend(), isDefault) ||
        std::none_of(queues.cbegin(), queues.cend(), isInstance))
        return;
    const std::unique_ptr<cups_dest_t, DestinationDeleter> found(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr));
    if (!found)
        return;
    const Queue wanted = queueOf(*found);
    for (Queue &queue : queues)
        queue.isDefault = queue.id() == wanted.id();
}

/// Whether the server answers at all, asked over a connection that can time out: the enumeration's own
/// cannot.
std::optional<Failure<QueueFault>> silence(std::chrono::milliseconds limit, int *cancel)
{
    CupsConnection connection(limit, cancel);
    if (!connection.isOpen())
        return queueFailure(QueueFault::NoServer, {}, connection.unreachableReason());
    if (!connection.answerTo(IppPointer(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT)), "/"))
        return connection.lastFailure({});
    return std::nullopt;
}

} // namespace

Result<QList<Queue>, QueueFault> sweepQueues(std::chrono::milliseconds limit, int *cancel)
{
    if (const auto failure = silence(limit, cancel))
        return *failure;
    Enumeration enumeration{{}, cancel};
    // Only what the server has: a printer seen on the network has neither a queue nor a PPD yet, and the
    // search for them takes seconds.
    const int done = cupsEnumDests(CUPS_DEST_FLAGS_NONE, static_cast<int>(limit.count()), cancel, 0,
                                   CUPS_PRINTER_DISCOVERED, collect, &enumeration);
    if (!done && cupsLastError() > IPP_STATUS_OK_CONFLICTING && cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND)
        return queueFailure(QueueFault::Failed, {}, QString::fromUtf8(cupsLastErrorString()));
    markDefault(enumeration.queues);
    return enumeration.queues;
}

QList<Queue> listQueues(std::chrono::milliseconds limit)
{
    const auto swept = callWithin<Result<QList<Queue>, QueueFault>>(
        limit, [limit](int *cancel) { return sweepQueues(limit, cancel); });
    return swept && *swept ? **swept : QList<Queue>();
}

std::optional<QString> defaultQueue(const QList<Queue> &queues)
{
    const auto found =
        std::find_if(queues.cbegin(), queues.cend(), [](const Queue &q) { return q.isDefault; });
    return found == queues.cend() ? std::nullopt : std::optional(found->id());
}

} // namespace printdialog
