// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StubPrinter.h"

#include <array>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace testing_support {

namespace {

constexpr int jobId = 7;

/// @param group all attributes of it
QMap<QString, QString> spelled(ipp_t *message, ipp_tag_t group)
{
    QMap<QString, QString> all;
    for (ipp_attribute_t *each = ippFirstAttribute(message); each; each = ippNextAttribute(message)) {
        std::array<char, 4096> text = {};
        if (ippGetGroupTag(each) != group || !ippGetName(each))
            continue;
        ippAttributeString(each, text.data(), text.size());
        all.insert(QString::fromLatin1(ippGetName(each)),
                   QString::fromLatin1(ippTagString(ippGetValueTag(each))) + u' ' +
                       QString::fromUtf8(text.data()));
    }
    return all;
}

} // namespace

StubPrinter::StubPrinter(const PrinterMessage &message)
    : message_(message)
    , listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(listener_, reinterpret_cast<sockaddr *>(&address), size) != 0 || listen(listener_, 16) != 0 ||
        getsockname(listener_, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        qFatal("the stub printer cannot listen");
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

StubPrinter::~StubPrinter()
{
    shutdown(listener_, SHUT_RDWR);
    thread_.join();
    close(listener_);
}

QString StubPrinter::address() const
{
    return QStringLiteral("ipp://localhost:%1/ipp/print").arg(port_);
}

QList<StubPrinter::Job> StubPrinter::jobs()
{
    const std::lock_guard lock(mutex_);
    return jobs_;
}

// One connection at a time, which ends with its request.
void StubPrinter::serve()
{
    while (http_t *http = httpAcceptConnection(listener_, 1)) {
        answer(http);
        httpClose(http);
    }
}

void StubPrinter::answer(http_t *http)
{
    std::array<char, 1024> resource = {};
    http_state_t state = HTTP_STATE_WAITING;
    while ((state = httpReadRequest(http, resource.data(), resource.size())) == HTTP_STATE_WAITING) {
    }
    while (state == HTTP_STATE_GET && httpUpdate(http) == HTTP_STATUS_CONTINUE) {
    }
    if (state == HTTP_STATE_GET) {
        httpClearFields(http);
        httpSetField(http, HTTP_FIELD_CONNECTION, "close");
        httpSetLength(http, 0);
        httpWriteResponse(http, HTTP_STATUS_NOT_FOUND);
        httpFlushWrite(http);
    }
    if (state != HTTP_STATE_POST)
        return;
    while (httpUpdate(http) == HTTP_STATUS_CONTINUE && httpGetState(http) == HTTP_STATE_POST) {
    }
    if (httpGetExpect(http) == HTTP_STATUS_CONTINUE)
        httpWriteResponse(http, HTTP_STATUS_CONTINUE);
    const std::shared_ptr<ipp_t> request(ippNew(), ippDelete);
    for (ipp_state_t read = IPP_STATE_IDLE; read != IPP_STATE_DATA;) {
        read = ippRead(http, request.get());
        if (read == IPP_STATE_ERROR)
            return;
    }
    QByteArray document;
    std::array<char, 4096> bytes = {};
    while (httpGetState(http) == HTTP_STATE_POST_RECV) {
        const ssize_t count = httpRead2(http, bytes.data(), bytes.size());
        if (count <= 0)
            break;
        document.append(bytes.data(), count);
    }
    const auto answer = answerTo(request.get(), resource.data(), document);
    httpClearFields(http);
    httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    httpSetField(http, HTTP_FIELD_CONNECTION, "close");
    httpSetLength(http, ippLength(answer.get()));
    httpWriteResponse(http, HTTP_STATUS_OK);
    ippSetState(answer.get(), IPP_STATE_IDLE);
    while (ippWrite(http, answer.get()) != IPP_STATE_DATA) {
    }
    httpFlushWrite(http);
}

std::shared_ptr<ipp_t> StubPrinter::answerTo(ipp_t *request, const QByteArray &resource,
                                             const QByteArray &document)
{
    if (ippGetOperation(request) == IPP_OP_GET_PRINTER_ATTRIBUTES)
        return message_.message();
    const std::shared_ptr<ipp_t> answer(ippNewResponse(request), ippDelete);
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", jobId);
    if (ippGetOperation(request) == IPP_OP_PRINT_JOB) {
        const QMap<QString, QString> operation = spelled(request, IPP_TAG_OPERATION);
        const std::lock_guard lock(mutex_);
        jobs_.append({spelled(request, IPP_TAG_JOB), resource,
                      operation.value(QStringLiteral("document-format")).section(u' ', 1).toLatin1(),
                      document});
    } else {
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state",
                      ++looks_ < 2 ? IPP_JSTATE_PROCESSING : IPP_JSTATE_COMPLETED);
    }
    return answer;
}

} // namespace testing_support
