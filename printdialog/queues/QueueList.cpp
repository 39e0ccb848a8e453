// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueList.h"

#include "AnswerAttributes.h"
#include "BoundedWorker.h"
#include "CupsConnection.h"
#include "OptionsFetcher.h"
#include "PlainText.h"
#include "QueueRecord.h"
#include "TemporaryQueue.h"
#include "UserDestinations.h"

#include <QtCore/QSet>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

constexpr int usualPort = 631;
/// Further queues are left out: nobody finds a printer among so many.
constexpr qsizetype mostQueues = 10'000;

constexpr std::array wantedAttributes = {
    "device-uri",        "marker-high-levels",     "marker-levels",
    "marker-low-levels", "marker-names",           "marker-types",
    "member-names",      "printer-info",           "printer-is-accepting-jobs",
    "printer-location",  "printer-make-and-model", "printer-name",
    "printer-state",     "printer-state-message",  "printer-state-reasons",
    "printer-type",      "printer-uri-supported",  "printer-is-temporary"};

Queue::State stateOf(int printerState)
{
    switch (printerState) {
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

/// Levels beyond 0 to 100 stand for "unknown" and the like (RFC 3805).
QList<Supply> suppliesOf(const AnswerAttributes &attributes)
{
    constexpr int defaultLowLevel = 10;
    constexpr qsizetype most = 16;
    QList<Supply> supplies;
    const QStringList names = attributes.texts("marker-names");
    const QStringList types = attributes.texts("marker-types");
    for (qsizetype i = 0; i < std::min(names.size(), most); ++i) {
        const int index = static_cast<int>(i);
        const int level = attributes.number("marker-levels", -1, index);
        Supply supply{names.at(i).isEmpty() ? types.value(i) : names.at(i), {}, false};
        if (level >= 0 && level <= 100) {
            supply.level = level;
            // A waste container is a problem when it is full.
            supply.isLow =
                types.value(i).startsWith(QLatin1String("waste"))
                    ? level >= attributes.number("marker-high-levels", 100 - defaultLowLevel, index)
                    : level <= attributes.number("marker-low-levels", defaultLowLevel, index);
        }
        supplies.append(supply);
    }
    return supplies;
}

Queue queueOf(const AnswerAttributes &attributes)
{
    Queue queue;
    queue.name = attributes.names("printer-name").value(0);
    queue.info = attributes.text("printer-info");
    if (queue.info.isEmpty())
        queue.info = queue.name;
    queue.location = attributes.text("printer-location");
    queue.makeAndModel = attributes.text("printer-make-and-model");
    queue.deviceUri = attributes.text("device-uri");
    queue.uri = attributes.text("printer-uri-supported");
    queue.state = stateOf(attributes.number("printer-state", 0));
    queue.stateReasons = attributes.texts("printer-state-reasons");
    queue.stateReasons.removeAll(QStringLiteral("none"));
    queue.stateMessage = attributes.text("printer-state-message");
    queue.supplies = suppliesOf(attributes);
    queue.members = attributes.names("member-names");
    queue.acceptsJobs = attributes.flag("printer-is-accepting-jobs", true);
    queue.isAnnounced = attributes.flag("printer-is-temporary", false);
    queue.isClass = (attributes.number("printer-type", 0) & CUPS_PRINTER_CLASS) != 0;
    return queue;
}

QList<Queue> queuesIn(ipp_t *answer)
{
    QList<Queue> queues;
    QSet<QString> names;
    AnswerAttributes attributes;
    const auto take = [&] {
        const Queue queue = queueOf(std::exchange(attributes, {}));
        // A queue named like the built-in printer could not be requested by name.
        if (queue.name.isEmpty() || queue.destination().isBuiltIn() || queues.size() >= mostQueues ||
            names.contains(queue.name))
            return;
        names.insert(queue.name);
        queues.append(queue);
    };
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer); attribute;
         attribute = ippNextAttribute(answer)) {
        if (ippGetGroupTag(attribute) == IPP_TAG_PRINTER && ippGetName(attribute))
            attributes.add(attribute);
        else
            take();
    }
    take();
    return queues;
}

} // namespace

QList<Queue> withInstances(const QList<Queue> &queues, const QList<Destination> &instances)
{
    QList<Queue> all;
    for (const Queue &queue : queues) {
        all.append(queue);
        for (const Destination &destination : instances) {
            if (destination.queue != queue.name || hasControls(destination.instance))
                continue;
            all.append(queue);
            all.last().instance = destination.instance;
        }
    }
    return all;
}

// Uses one connection with a limit and requests only what is needed. cupsEnumDests() uses its own connection
// without a limit, so a server that falls silent blocks its thread forever. It also requests more attributes
// of each queue, and does not report the members of a class.
Result<QList<Queue>, QueueFault> sweepQueues(std::chrono::milliseconds limit, int *cancel)
{
    CupsConnection connection(limit, cancel);
    const auto isFailure = [&connection](const IppPointer &answer) {
        return !answer || !(connection.hasSucceeded() || connection.status() == IPP_STATUS_ERROR_NOT_FOUND);
    };
    const IppPointer preset = connection.answerTo(IppPointer(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT)), "/");
    if (isFailure(preset))
        return connection.lastFailure({});

    IppPointer request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wantedAttributes.size()), nullptr, wantedAttributes.data());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    if (isFailure(answer))
        return connection.lastFailure({});

    const UserDestinations user = UserDestinations::read();
    QList<Queue> queues = withInstances(queuesIn(answer.get()), user.instances);
    const Destination chosen = user.defaultPrinter.value_or(textsOf(preset.get(), "printer-name").value(0));
    for (Queue &queue : queues)
        queue.isDefault = queue.destination() == chosen;
    return queues;
}

namespace {

Queue printerAt(const Destination &destination, const IppAttributes &attributes)
{
    const auto text = [&attributes](const char *name) {
        return plainText(attributes.text(QLatin1String(name)).value_or(QString()).simplified(),
                         shownTextLimit);
    };
    Queue queue = Queue::at(destination);
    queue.info.clear();
    queue.makeAndModel = text("printer-make-and-model");
    for (const QString &info : {text("printer-info"), text("printer-name"), queue.makeAndModel, queue.name}) {
        if (queue.info.isEmpty())
            queue.info = info;
    }
    queue.location = text("printer-location");
    queue.state = stateOf(attributes.number(QStringLiteral("printer-state")).value_or(0));
    queue.stateMessage = text("printer-state-message");
    queue.acceptsJobs = attributes.number(QStringLiteral("printer-is-accepting-jobs")).value_or(1) != 0;
    return queue;
}

Result<OpenedQueue, QueueFault> openHere(const Destination &destination, std::chrono::milliseconds limit,
                                         const QString &announcedUri, int *cancel)
{
    CupsConnection connection(limit, cancel, PrinterAddress::of(destination.queue));
    connection.actFor(destination.id());
    if (!announcedUri.isEmpty()) {
        const auto made = temporaryQueue(connection, destination, announcedUri, limit);
        if (!made)
            return made.failure();
    }
    const auto record = queueRecord(connection, destination);
    if (!record)
        return record.failure();
    if (destination.isAddress()) {
        const IppAttributes attributes = attributesOf(connection, *record, false, limit);
        return OpenedQueue{printerAt(destination, attributes), false, {}, attributes};
    }
    IppPointer request = ippRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, record->uri);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wantedAttributes.size()), nullptr, wantedAttributes.data());
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    const QList<Queue> found = answer ? queuesIn(answer.get()) : QList<Queue>();
    if (found.isEmpty())
        return connection.lastFailure(destination.id());
    OpenedQueue opened{found.constFirst(), false, {}, {}};
    opened.queue.instance = destination.instance;
    if (!announcedUri.isEmpty()) {
        opened.queue.isAnnounced = true;
        opened.queue.deviceUri = announcedUri;
    }
    const auto ppd = ppdOf(connection, *record);
    if (!ppd && ppd.failure().reason != QueueFault::NoPpd)
        return ppd.failure();
    if (ppd) {
        opened.hasPpd = true;
        opened.ppd = *ppd;
    }
    opened.attributes =
        attributesOf(connection, *record, opened.hasPpd, opened.hasPpd ? attributesPatience(limit) : limit);
    return opened;
}

} // namespace

Result<OpenedQueue, QueueFault> queueNamed(const Destination &destination, std::chrono::milliseconds limit,
                                           const QString &announcedUri)
{
    auto opened = callWithin<Result<OpenedQueue, QueueFault>>(
        2 * limit, [destination, limit, announcedUri](int *cancel) {
            return openHere(destination, limit, announcedUri, cancel);
        });
    if (!opened)
        return announcedUri.isEmpty() ? queueFailure(QueueFault::TimedOut, destination.id())
                                      : absentPrinter(destination.id(), limit);
    return *std::move(opened);
}

QString printServerAddress()
{
    cupsSetServer(nullptr);
    const QString server = QString::fromUtf8(cupsServer());
    return server.startsWith(u'/') ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

bool isPrintServerHere()
{
    cupsSetServer(nullptr);
    const QByteArray server(cupsServer());
    return server.startsWith('/') ||
           (ippPort() == usualPort &&
            (server == "localhost" || server.startsWith("127.") || server == "::1" || server == "[::1]"));
}

bool isWithoutPrintServer(const Failure<QueueFault> &failure)
{
    cupsSetServer(nullptr);
    const QString server = QString::fromUtf8(cupsServer());
    // Another port was configured on purpose, for example for a tunnel.
    return failure.reason == QueueFault::NoServer &&
           (server.startsWith(u'/') || (server == QLatin1String("localhost") && ippPort() == usualPort));
}

Result<QList<Queue>, QueueFault> listQueues(std::chrono::milliseconds limit)
{
    auto swept = callWithin<Result<QList<Queue>, QueueFault>>(
        limit, [limit](int *cancel) { return sweepQueues(limit, cancel); });
    return swept ? *std::move(swept) : queueFailure(QueueFault::TimedOut, {});
}

std::optional<Destination> defaultQueue(const QList<Queue> &queues)
{
    const auto found =
        std::find_if(queues.cbegin(), queues.cend(), [](const Queue &q) { return q.isDefault; });
    return found == queues.cend() ? std::nullopt : std::optional(found->destination());
}

} // namespace printdialog
