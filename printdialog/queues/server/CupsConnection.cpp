// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CupsConnection.h"
#include "CupsConnection_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <mutex>
#include <sys/socket.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

/// A local server accepts at once or not at all.
constexpr auto loopbackLimit = 250ms;
/// On first use, libcups makes the process ignore SIGPIPE. Restores a handler that was installed before.
void initializeCups()
{
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction before = {};
        sigaction(SIGPIPE, nullptr, &before);
        httpInitialize();
        if (before.sa_handler != SIG_DFL)
            sigaction(SIGPIPE, &before, nullptr);
    });
}

QueueFault faultOf(ipp_status_t status)
{
    switch (status) {
    case IPP_STATUS_ERROR_NOT_FOUND:
    case IPP_STATUS_ERROR_GONE:
        return QueueFault::NotFound;
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return QueueFault::NotAccepting;
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
        return QueueFault::Refused;
    default:
        return QueueFault::Failed;
    }
}

QueueFault faultOf(http_status_t status)
{
    return status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_FORBIDDEN ? QueueFault::Refused
                                                                                 : QueueFault::Failed;
}

double seconds(std::chrono::milliseconds time)
{
    return std::chrono::duration<double>(time).count();
}

QString unfitReason()
{
    return QCoreApplication::translate("CupsConnection", "its answer is too large or malformed");
}

} // namespace

CupsConnection::CupsConnection(std::chrono::milliseconds limit, int *cancel,
                               const std::optional<PrinterAddress> &printer)
    : limit_(limit)
    , deadline_(SocketLimit::Clock::now() + limit)
    , cancel_(cancel)
    , printer_(printer)
{
    initializeCups();
    cupsSetPasswordCB2(noPassword, nullptr); // not libcups' own, which reads from the terminal
    // libcups caches the server's name per thread; reset it so that a socket that appears later is found.
    cupsSetServer(nullptr);
    server_ = printer ? printer->host : QFile::decodeName(cupsServer());
    port_ = printer ? printer->port : ippPort();
    encryption_ = cupsEncryption();
    if (printer)
        encryption_ = printer->isEncrypted ? HTTP_ENCRYPTION_ALWAYS : HTTP_ENCRYPTION_IF_REQUESTED;
}

CupsConnection::~CupsConnection()
{
    disconnect();
}

void CupsConnection::disconnect()
{
    socketLimit_.reset();
    http_.reset();
}

bool CupsConnection::connect()
{
    disconnect();
    isUsed_ = false;
    isSpent_ = false;
    const bool isSocket = server_.startsWith(u'/');
    if (isSocket && !QFileInfo::exists(server_))
        return false;
    const bool isLocal = isSocket || server_ == QLatin1String("localhost");
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline_ - SocketLimit::Clock::now());
    const auto connectLimit = isLocal ? std::min<std::chrono::milliseconds>(left, loopbackLimit) : left;
    // An upgrade to encryption is a separate request, and its answer has limits, too.
    const bool isUpgrade = encryption_ == HTTP_ENCRYPTION_REQUIRED;
    http_.reset(httpConnect2(QFile::encodeName(server_).constData(), port_, nullptr, AF_UNSPEC,
                             isUpgrade ? HTTP_ENCRYPTION_IF_REQUESTED : encryption_, 1,
                             static_cast<int>(std::max(connectLimit, 1ms).count()), cancel_));
    if (!http_)
        return false;
    socketLimit_ = std::make_unique<SocketLimit>(http_.get(), deadline_, cancel_);
    socketLimit_->allow(overheadLimit);
    if (!socketLimit_->isInPlace() || (isUpgrade && httpEncryption(http_.get(), encryption_) != 0))
        disconnect();
    else if (printer_ && httpIsEncrypted(http_.get()) && !isTrusted()) {
        disconnect();
        end_ = End::Strange;
    }
    return isOpen();
}

/// By the rules of CUPS (client.conf(5)): the first certificate of a printer is kept, and a later one must
/// replace it lawfully.
bool CupsConnection::isTrusted()
{
    cups_array_t *credentials = nullptr;
    if (httpCopyCredentials(http_.get(), &credentials) != 0)
        return false;
    const QByteArray name = printer_->host.toUtf8();
    const http_trust_t trust = httpCredentialsGetTrust(credentials, name.constData());
    const bool isFine = trust == HTTP_TRUST_OK || trust == HTTP_TRUST_RENEWED;
    if (isFine)
        httpSaveCredentials(nullptr, credentials, name.constData());
    httpFreeCredentials(credentials);
    return isFine;
}

QByteArray CupsConnection::jobsUri() const
{
    return printer_ ? printer_->uri : QByteArray("ipp://localhost/");
}

void CupsConnection::extend()
{
    deadline_ = SocketLimit::Clock::now() + limit_;
    if (socketLimit_)
        socketLimit_->setDeadline(deadline_);
}

void CupsConnection::extend(std::chrono::milliseconds limit)
{
    limit_ = limit;
    extend();
}

bool CupsConnection::isCanceled() const
{
    return cancel_ && std::atomic_ref(*cancel_).load() != 0;
}

void CupsConnection::heed(int *cancel)
{
    cancel_ = cancel;
    if (socketLimit_)
        socketLimit_->heed(cancel);
}

QString CupsConnection::unreachableReason() const
{
    const QString address =
        server_.startsWith(u'/') ? server_ : QStringLiteral("%1:%2").arg(server_).arg(port_);
    return QCoreApplication::translate("CupsConnection", "nothing answers at %1").arg(address);
}

Failure<QueueFault> CupsConnection::lastFailure(const QString &queue) const
{
    if (isCanceled())
        return queueFailure(QueueFault::Canceled, queue);
    if (end_ == End::Nobody)
        return queueFailure(QueueFault::NoServer, queue, unreachableReason());
    if (socketLimit_ ? socketLimit_->isOver() : SocketLimit::Clock::now() >= deadline_) {
        return queueFailure(QueueFault::TimedOut, queue,
                            QCoreApplication::translate("CupsConnection", "it gave no answer within %1 s")
                                .arg(seconds(limit_)));
    }
    switch (end_) {
    case End::Http:
        if (httpStatus_ == HTTP_STATUS_UNAUTHORIZED && !whyNoLogin_.isEmpty())
            return queueFailure(QueueFault::Refused, queue, whyNoLogin_);
        return queueFailure(faultOf(httpStatus_), queue, QString::fromUtf8(httpStatus(httpStatus_)));
    case End::Broken:
        return queueFailure(QueueFault::Failed, queue,
                            QCoreApplication::translate("CupsConnection", "the connection broke"));
    case End::Answered:
        if (!hasSucceeded())
            return queueFailure(faultOf(status_), queue, words_);
        break;
    case End::Strange:
        return queueFailure(QueueFault::Refused, queue,
                            QCoreApplication::translate("CupsConnection", "its certificate is not trusted"));
    case End::Nobody:
    case End::Unfit:
        break;
    }
    return queueFailure(QueueFault::Failed, queue, unfitReason());
}

} // namespace printdialog
