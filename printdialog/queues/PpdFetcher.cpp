// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdFetcher.h"

#include "BoundedWorker.h"
#include "CupsConnection.h"
#include "QueueRecord.h"

#include <QtCore/QUrl>

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
    return PpdFetcher::tr("the connection broke in the middle of its PPD");
}

QString tooLargeReason()
{
    return PpdFetcher::tr("its PPD is larger than %1 MiB").arg(fetchedPpdLimit / 1024 / 1024);
}

Result<QByteArray, QueueFault> fetchHere(const Destination &destination, std::chrono::milliseconds limit,
                                         int *cancel)
{
    CupsConnection connection(limit, cancel);
    const auto record = queueRecord(connection, destination);
    if (!record)
        return record.failure();
    return ppdOf(connection, *record);
}

QString limitReason(std::chrono::milliseconds limit)
{
    return PpdFetcher::tr("its PPD did not arrive within %1 s")
        .arg(std::chrono::duration<double>(limit).count());
}

Result<CheckedPpd, QueueFault> checked(const Result<QByteArray, QueueFault> &fetched,
                                       const std::optional<CheckedPpd> &known, const PpdFetcher::Check &check,
                                       const QString &name)
{
    if (!fetched)
        return fetched.failure();
    if (known && known->data() == *fetched)
        return *known;
    auto ppd = check(*fetched, name);
    if (!ppd)
        return Failure<QueueFault>{QueueFault::Failed, ppd.failure().text, {}};
    return *std::move(ppd);
}

} // namespace

Result<QByteArray, QueueFault> ppdOf(CupsConnection &connection, const QueueRecord &record)
{
    const QString &queue = record.destination.queue;
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
        return queueFailure(QueueFault::NoPpd, queue, PpdFetcher::tr("what the print server keeps is empty"));
    return ppd;
}

PpdFetcher::PpdFetcher(QObject *parent, std::chrono::milliseconds limit, Check check)
    : QObject(parent)
    , check_(std::move(check))
{
    limit_.setSingleShot(true);
    limit_.setInterval(limit);
    connect(&limit_, &QTimer::timeout, this, [this] {
        take(queueFailure(QueueFault::TimedOut, destination_.id(), limitReason(limit_.intervalAsDuration())));
    });
}

PpdFetcher::~PpdFetcher()
{
    limit_.stop();
    if (worker_)
        worker_->release(fetchEndPatience);
}

quint64 PpdFetcher::fetch(const Destination &destination, const std::optional<CheckedPpd> &known)
{
    const bool isUnderWay = std::exchange(isAhead_, false) && destination == destination_;
    if (!isUnderWay)
        start(destination, known);
    const quint64 number = ++number_;
    if (early_) {
        const auto announce = [this, number] {
            if (const auto ppd = number == number_ ? std::exchange(early_, {}) : std::nullopt)
                Q_EMIT fetched(number, *ppd);
        };
        QMetaObject::invokeMethod(this, announce, Qt::QueuedConnection);
    }
    return number;
}

void PpdFetcher::fetchAhead(const Destination &destination)
{
    start(destination, std::nullopt);
    isAhead_ = true;
}

void PpdFetcher::start(const Destination &destination, const std::optional<CheckedPpd> &known)
{
    cancel();
    destination_ = destination;
    worker_ = std::make_shared<BoundedWorker>(this);
    worker_->run(
        [this, destination, known, limit = limit_.intervalAsDuration(), check = check_](BoundedWorker &self) {
            const auto fetched = fetchHere(destination, limit, self.cancelFlag());
            self.post([this] { limit_.stop(); }); // the check that follows does not involve the server
            const auto outcome = checked(fetched, known, check, destination.id());
            self.post([this, outcome] { take(outcome); });
        });
    limit_.start();
}

void PpdFetcher::cancel()
{
    limit_.stop();
    isAhead_ = false;
    early_.reset();
    if (const auto worker = std::exchange(worker_, nullptr))
        worker->release({});
}

Result<CheckedPpd, PpdFault> PpdFetcher::checkFetched(const QByteArray &ppd, const QString &name)
{
    return checkPpd(ppd, name);
}

void PpdFetcher::take(const Result<CheckedPpd, QueueFault> &outcome)
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
