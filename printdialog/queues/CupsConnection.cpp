// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CupsConnection.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <mutex>
#include <sys/socket.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto cancelInterval = 100ms;
/// A server on this machine accepts at once or not at all.
constexpr auto loopbackLimit = 250ms;
/// A name that is longer cannot be one of a queue (CUPS allows 127 bytes).
constexpr qsizetype queueNameLimit = 127;

/// libcups sets SIGPIPE to be ignored when it is first used; a handler that somebody installed stays in
/// force.
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

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
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

QByteArray textOf(ipp_t *answer, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(answer, name, IPP_TAG_ZERO);
    const char *text = attribute ? ippGetString(attribute, 0, nullptr) : nullptr;
    return text ? QByteArray(text) : QByteArray();
}

} // namespace

IppPointer ippRequest(ipp_op_t operation, const QByteArray &uri)
{
    IppPointer request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

QStringList textsOf(ipp_t *answer, const char *attribute)
{
    QStringList texts;
    ipp_attribute_t *found = ippFindAttribute(answer, attribute, IPP_TAG_ZERO);
    for (int i = 0; found && i < ippGetCount(found); ++i) {
        if (const char *text = ippGetString(found, i, nullptr))
            texts.append(QString::fromUtf8(text));
    }
    return texts;
}

CupsConnection::CupsConnection(std::chrono::milliseconds limit, int *cancel)
    : limit_(limit)
    , cancel_(cancel)
{
    initializeCups();
    cupsSetPasswordCB2(noPassword, nullptr);
    // libcups keeps the server's name for the life of a thread; a socket that appears later must be seen.
    cupsSetServer(nullptr);
    server_ = QFile::decodeName(cupsServer());
    const bool isSocket = server_.startsWith(u'/');
    if (isSocket && !QFileInfo::exists(server_))
        return;
    const bool isLocal = isSocket || server_ == QLatin1String("localhost");
    const auto connectLimit = isLocal ? std::min<std::chrono::milliseconds>(limit, loopbackLimit) : limit;
    http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                             static_cast<int>(connectLimit.count()), cancel));
    if (!http_)
        return;
    socketLimit_ = std::make_unique<SocketLimit>(http_.get(), SocketLimit::Clock::now() + limit_, cancel);
    httpSetTimeout(http_.get(), std::chrono::duration<double>(cancelInterval).count(), goesOn, this);
}

CupsConnection::~CupsConnection()
{
    if (http_)
        httpSetTimeout(http_.get(), std::chrono::duration<double>(cancelInterval).count(), nullptr, nullptr);
}

void CupsConnection::extend()
{
    if (socketLimit_)
        socketLimit_->setDeadline(SocketLimit::Clock::now() + limit_);
}

bool CupsConnection::isCancelled() const
{
    return cancel_ && std::atomic_ref(*cancel_).load() != 0;
}

void CupsConnection::ignoreCancel()
{
    cancel_ = nullptr;
    if (socketLimit_)
        socketLimit_->ignoreCancel();
}

int CupsConnection::goesOn(http_t *, void *self)
{
    return static_cast<CupsConnection *>(self)->socketLimit_->isOver() ? 0 : 1;
}

QString CupsConnection::unreachableReason() const
{
    return QCoreApplication::translate("CupsConnection", "nothing answers at %1").arg(server_);
}

Failure<QueueFault> CupsConnection::lastFailure(const QString &queue) const
{
    if (isCancelled())
        return queueFailure(QueueFault::Cancelled, queue);
    if (socketLimit_ && socketLimit_->isOver()) {
        const double seconds = std::chrono::duration<double>(limit_).count();
        return queueFailure(
            QueueFault::TimedOut, queue,
            QCoreApplication::translate("CupsConnection", "it gave no answer within %1 s").arg(seconds));
    }
    const QueueFault fault = faultOf(cupsLastError());
    if (fault == QueueFault::Failed && isBroken())
        return queueFailure(fault, queue,
                            QCoreApplication::translate("CupsConnection", "the connection broke"));
    return queueFailure(fault, queue, QString::fromUtf8(cupsLastErrorString()));
}

// Where the server was gone libcups tells of whatever error the system had last, of none, too; and it may be
// connected anew by then.
bool CupsConnection::isBroken() const
{
    if (httpGetStatus(http_.get()) >= HTTP_STATUS_BAD_REQUEST)
        return false; // the server has had its say
    if (cupsLastError() <= IPP_STATUS_OK_CONFLICTING || qstrcmp(cupsLastErrorString(), std::strerror(0)) == 0)
        return true;
    const int socket = httpGetFd(http_.get());
    char byte = 0;
    const ssize_t count = socket < 0 ? 0 : recv(socket, &byte, sizeof byte, MSG_PEEK | MSG_DONTWAIT);
    return count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR);
}

IppPointer CupsConnection::answerTo(IppPointer request, const char *resource)
{
    return IppPointer(cupsDoRequest(http_.get(), request.release(), resource));
}

Result<QueueRecord, QueueFault> queueRecord(CupsConnection &connection, const QString &queueId)
{
    QueueRecord record;
    record.name = queueId.section(u'/', 0, 0).toUtf8();
    record.instance = queueId.section(u'/', 1).toUtf8();
    if (record.name.isEmpty() || record.name.size() > queueNameLimit || hasControls(queueId))
        return queueFailure(QueueFault::NotFound, queueId,
                            QCoreApplication::translate("CupsConnection", "no printer can have this name"));
    std::array<char, 1024> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, "/printers/%s", record.name.constData());
    static constexpr std::array wanted = {"printer-uri-supported", "printer-is-accepting-jobs",
                                          "printer-state", "printer-state-message", "printer-state-reasons"};
    IppPointer request = ippRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, uri.data());
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    if (!answer || cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        return connection.lastFailure(queueId);
    record.uri = textOf(answer.get(), "printer-uri-supported");
    if (record.uri.isEmpty())
        record.uri = uri.data();
    record.stateMessage = QString::fromUtf8(textOf(answer.get(), "printer-state-message"));
    record.stateReasons = textsOf(answer.get(), "printer-state-reasons");
    record.stateReasons.removeAll(QStringLiteral("none"));
    ipp_attribute_t *state = ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM);
    record.isStopped = state && ippGetInteger(state, 0) == IPP_PSTATE_STOPPED;
    ipp_attribute_t *accepts = ippFindAttribute(answer.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    record.acceptsJobs = !accepts || ippGetBoolean(accepts, 0) != 0;
    return record;
}

} // namespace printdialog
