// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionsFetcher.h"

#include "BoundedWorker.h"
#include "CupsConnection.h"
#include "QueueRecord.h"
#include "TemporaryQueue.h"

#include <QtCore/QUrl>

#include <future>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto fetchEndPatience = 50ms;

QueueFault fetchFaultOf(http_status_t status)
{
    switch (status) {
    case HTTP_STATUS_NOT_FOUND:
        return QueueFault::NoPpd;
    case HTTP_STATUS_FORBIDDEN:
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return QueueFault::Refused;
    default:
        return QueueFault::Failed;
    }
}

QString brokenReason()
{
    return OptionsFetcher::tr("the connection broke in the middle of its PPD");
}

QString tooLargeReason()
{
    return OptionsFetcher::tr("its PPD is larger than %1 MiB").arg(fetchedPpdLimit / 1024 / 1024);
}

QString limitReason(std::chrono::milliseconds limit)
{
    return OptionsFetcher::tr("its PPD did not arrive within %1 s")
        .arg(std::chrono::duration<double>(limit).count());
}

/// A queue and its PPD, if it has one.
struct FoundQueue
{
    QueueRecord record;
    std::optional<QByteArray> ppd;
};

Result<FoundQueue, QueueFault> findQueue(CupsConnection &connection, const Destination &destination,
                                         const QString &announcedUri, std::chrono::milliseconds limit)
{
    if (!announcedUri.isEmpty()) {
        auto queue = temporaryQueue(connection, destination, announcedUri, limit);
        if (!queue)
            return queue.failure();
        return FoundQueue{std::move(queue->record), std::move(queue->ppd)};
    }
    auto record = queueRecord(connection, destination);
    if (!record)
        return record.failure();
    auto ppd = ppdOf(connection, *record);
    if (!ppd && ppd.failure().reason != QueueFault::NoPpd)
        return ppd.failure();
    return FoundQueue{*std::move(record), ppd ? std::optional(*std::move(ppd)) : std::nullopt};
}

Result<CheckedPpd, QueueFault> checked(const QByteArray &fetched, const std::optional<CheckedPpd> &known,
                                       const OptionsFetcher::Check &check, const QString &name)
{
    if (known && known->data() == fetched)
        return *known;
    auto ppd = check(fetched, name);
    if (!ppd)
        return Failure<QueueFault>{QueueFault::Failed, ppd.failure().text, {}};
    return *std::move(ppd);
}

} // namespace

Result<QByteArray, QueueFault> ppdOf(CupsConnection &connection, const QueueRecord &record)
{
    const QString &queue = record.destination.queue;
    if (record.destination.isAddress())
        return queueFailure(QueueFault::NoPpd, queue);
    // Not cupsGetPPD3(): with a local socket it links to the file of the queue's name in this machine's
    // /etc/cups/ppd, and it opens a second connection, which has no limits.
    const QByteArray resource = "/printers/" + QUrl::toPercentEncoding(queue) + ".ppd";
    QByteArray ppd;
    const http_status_t status = connection.fetch(resource, fetchedPpdLimit, ppd);
    if (ppd.size() > fetchedPpdLimit)
        return queueFailure(QueueFault::Failed, queue, tooLargeReason());
    if (status == HTTP_STATUS_ERROR) {
        const auto failure = connection.lastFailure(queue);
        return failure.reason == QueueFault::Failed && connection.isBroken()
                   ? queueFailure(QueueFault::Failed, queue, brokenReason())
                   : failure;
    }
    if (status != HTTP_STATUS_OK)
        return queueFailure(fetchFaultOf(status), queue, QString::fromUtf8(httpStatus(status)));
    if (ppd.isEmpty())
        return queueFailure(QueueFault::NoPpd, queue,
                            OptionsFetcher::tr("what the print server keeps is empty"));
    return ppd;
}

namespace {

IppAttributes requested(CupsConnection &connection, const QueueRecord &record, const char *wanted)
{
    IppPointer request = ippRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, record.uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, wanted);
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    return answer && connection.hasSucceeded() ? IppAttributes::ofPrinter(answer.get()) : IppAttributes();
}

} // namespace

// "all" does not include the media database. Requested together with it, CUPS leaves out the defaults of a
// PPD's own options, and its printer applications leave out the maker's attributes.
IppAttributes attributesOf(CupsConnection &connection, const QueueRecord &record, bool hasPpd,
                           std::chrono::milliseconds patience)
{
    connection.extend(patience);
    IppAttributes attributes = requested(connection, record, "all");
    const QString database = QStringLiteral("media-col-database");
    const bool hasMedia = attributes.contains(QStringLiteral("media-supported")) ||
                          attributes.contains(QStringLiteral("media-size-supported"));
    if (!hasPpd && hasMedia && !attributes.contains(database)) {
        const IppAttributes media = requested(connection, record, "media-col-database");
        if (media.contains(database))
            attributes.insert(database, media.values(database));
    }
    return attributes;
}

OptionsFetcher::OptionsFetcher(QObject *parent, std::chrono::milliseconds limit, Check check)
    : QObject(parent)
    , check_(std::move(check))
{
    limit_.setSingleShot(true);
    limit_.setInterval(limit);
    connect(&limit_, &QTimer::timeout, this, [this] {
        if (Logins::ofRun().isAsking()) {
            limit_.start();
            return;
        }
        const auto passed = limit_.intervalAsDuration();
        take(announcedUri_.isEmpty()
                 ? queueFailure(QueueFault::TimedOut, destination_.id(), limitReason(passed))
                 : absentPrinter(destination_.id(), passed));
    });
}

OptionsFetcher::~OptionsFetcher()
{
    limit_.stop();
    if (worker_)
        worker_->release(fetchEndPatience);
}

quint64 OptionsFetcher::fetch(const Destination &destination, const std::optional<CheckedPpd> &known,
                              const QString &announcedUri)
{
    const bool isUnderWay =
        std::exchange(isAhead_, false) && destination == destination_ && announcedUri == announcedUri_;
    if (!isUnderWay)
        start(destination, known, announcedUri);
    const quint64 number = ++number_;
    if (early_) {
        const auto announce = [this, number] {
            if (const auto options = number == number_ ? std::exchange(early_, {}) : std::nullopt)
                Q_EMIT fetched(number, *options);
        };
        QMetaObject::invokeMethod(this, announce, Qt::QueuedConnection);
    }
    return number;
}

void OptionsFetcher::fetchAhead(const Destination &destination)
{
    start(destination, std::nullopt, {});
    isAhead_ = true;
}

void OptionsFetcher::start(const Destination &destination, const std::optional<CheckedPpd> &known,
                           const QString &announcedUri)
{
    cancel();
    destination_ = destination;
    announcedUri_ = announcedUri;
    worker_ = std::make_shared<BoundedWorker>(this);
    worker_->run([this, destination, known, announcedUri, limit = limit_.intervalAsDuration(),
                  check = check_](BoundedWorker &self) {
        const auto outcome = [&]() -> Result<FetchedOptions, QueueFault> {
            CupsConnection connection(limit, self.cancelFlag(), PrinterAddress::of(destination.queue));
            connection.actFor(destination.id());
            const auto found = findQueue(connection, destination, announcedUri, limit);
            if (!found)
                return found.failure();
            const auto &[record, fetched] = *found;
            std::future<Result<CheckedPpd, QueueFault>> checking;
            if (fetched)
                checking = std::async(std::launch::async, [&, ppd = &*fetched] {
                    return checked(*ppd, known, check, destination.id());
                });
            self.post([this] { limit_.start(); });
            FetchedOptions options{std::nullopt, attributesOf(connection, record, fetched.has_value(),
                                                              fetched ? attributesPatience(limit) : limit)};
            self.post([this] { limit_.stop(); }); // the check does not involve the server
            if (checking.valid()) {
                auto ppd = checking.get();
                if (!ppd)
                    return ppd.failure();
                options.ppd = *std::move(ppd);
            }
            return options;
        }();
        self.post([this, outcome] { take(outcome); });
    });
    limit_.start();
}

void OptionsFetcher::cancel()
{
    limit_.stop();
    isAhead_ = false;
    early_.reset();
    if (const auto worker = std::exchange(worker_, nullptr))
        worker->release({});
}

Result<CheckedPpd, PpdFault> OptionsFetcher::checkFetched(const QByteArray &ppd, const QString &name)
{
    return checkPpd(ppd, name);
}

void OptionsFetcher::take(const Result<FetchedOptions, QueueFault> &outcome)
{
    const bool isEarly = isAhead_;
    cancel();
    if (isEarly) {
        isAhead_ = static_cast<bool>(outcome);
        early_ = outcome ? std::optional(*outcome) : std::nullopt;
    } else if (outcome) {
        Q_EMIT fetched(number_, *outcome);
    } else {
        Q_EMIT failed(number_, outcome.failure().reason, outcome.failure().text);
    }
}

} // namespace printdialog
