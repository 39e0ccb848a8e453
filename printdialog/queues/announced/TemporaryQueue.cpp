// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TemporaryQueue.h"

#include "CupsConnection.h"
#include "OptionsFetcher.h"

#include <QtCore/QCoreApplication>

#include <thread>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

using Clock = std::chrono::steady_clock;

/// A printer that is awake answers within some ten milliseconds; one that is not is asked for less often.
constexpr auto firstPause = 10ms;
constexpr auto laterPause = 100ms;
constexpr auto eagerness = 1s;
/// The server has the PPD shortly before it sets the queue to accept jobs.
constexpr auto settling = 300ms;

/// Asks the server to make the queue. Nothing when it did, or has one of this name already.
std::optional<Failure<QueueFault>> make(CupsConnection &connection, const Destination &destination,
                                        const QString &deviceUri)
{
    IppPointer request = ippRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr,
                 destination.queue.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr,
                 deviceUri.toUtf8().constData());
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    if (answer && (connection.hasSucceeded() || connection.status() == IPP_STATUS_ERROR_NOT_POSSIBLE))
        return std::nullopt;
    return connection.lastFailure(destination.id());
}

} // namespace

Failure<QueueFault> absentPrinter(const QString &id, std::chrono::milliseconds limit)
{
    return queueFailure(
        QueueFault::Absent, id,
        QCoreApplication::translate("TemporaryQueue", "its options did not arrive within %1 s")
            .arg(std::chrono::duration<double>(limit).count()));
}

Result<TemporaryQueue, QueueFault> temporaryQueue(CupsConnection &connection, const Destination &destination,
                                                  const QString &deviceUri, std::chrono::milliseconds limit)
{
    const auto begin = Clock::now();
    std::optional<Clock::time_point> hasPpdSince;
    bool isMade = false;
    connection.extend(limit);
    for (;;) {
        auto record = queueRecord(connection, destination);
        if (!record && (record.failure().reason != QueueFault::NotFound || isMade))
            return record.failure();
        if (!record) {
            if (const auto failure = make(connection, destination, deviceUri))
                return *failure;
            isMade = true;
            continue;
        }
        auto ppd = ppdOf(connection, *record);
        if (!ppd && ppd.failure().reason != QueueFault::NoPpd)
            return ppd.failure();
        const auto now = Clock::now();
        if (ppd && !hasPpdSince)
            hasPpdSince = now;
        const bool isSettled = !isMade || (record->acceptsJobs && !record->isStopped);
        if (ppd && (isSettled || now - *hasPpdSince > settling))
            return TemporaryQueue{*std::move(record), *std::move(ppd)};
        if (now - begin + laterPause > limit)
            return absentPrinter(destination.id(), limit);
        if (connection.isCanceled())
            return queueFailure(QueueFault::Canceled, destination.id());
        std::this_thread::sleep_for(now - begin < eagerness ? firstPause : laterPause);
    }
}

} // namespace printdialog
