// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// CupsConnection: requests and their answers.

#include "CupsConnection.h"
#include "IppInspection.h"

#include <array>

namespace printdialog {

namespace {

/// How long to wait for "100 Continue" before sending a document.
constexpr int continueLimit = 1000; // ms
/// How long to wait for the end of an answer's framing after its last byte.
constexpr int restLimit = 100; // ms
constexpr qint64 restBytesLimit = 65536;
/// More than logins, upgrades and broken connections can need.
constexpr int mostAttempts = 8;

/// Feeds the bytes of an answer to libcups through the inspection.
struct InspectedBody
{
    http_t *http = nullptr;
    IppInspection inspection;
    bool isUnfit = false;
};

ssize_t readInspected(void *context, ipp_uchar_t *buffer, size_t size)
{
    auto *body = static_cast<InspectedBody *>(context);
    size_t done = 0;
    while (done < size) {
        const ssize_t count = httpRead2(body->http, reinterpret_cast<char *>(buffer) + done, size - done);
        if (count <= 0)
            return -1;
        done += static_cast<size_t>(count);
    }
    body->isUnfit = !body->inspection.admits(buffer, size);
    return body->isUnfit ? -1 : static_cast<ssize_t>(size);
}

} // namespace

// A request

IppPointer CupsConnection::answerTo(IppPointer request, const char *resource)
{
    begin(request.get(), resource, 0);
    return answer();
}

bool CupsConnection::begin(ipp_t *request, const QByteArray &resource, qint64 documentSize)
{
    const QByteArray &path = printer_ ? printer_->resource : resource;
    bool asksBefore = documentSize > 0;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (!prepare())
            break;
        if (post(request, path, documentSize, asksBefore) && documentSize == 0)
            readHead(Head::Answer);
        if (httpStatus_ == HTTP_STATUS_EXPECTATION_FAILED && asksBefore) {
            asksBefore = false;
            isSpent_ = true;
        } else if (!removesObstacle("POST", path)) {
            break;
        }
    }
    return end_ == End::Answered && httpStatus_ == HTTP_STATUS_CONTINUE;
}

bool CupsConnection::prepare()
{
    end_ = End::Answered;
    status_ = IPP_STATUS_ERROR_INTERNAL;
    words_.clear();
    httpStatus_ = HTTP_STATUS_CONTINUE;
    // Reconnect in these cases: otherwise libcups would, past SocketLimit.
    if (!isOpen() || isSpent_ || httpGetFd(http_.get()) < 0 ||
        httpGetState(http_.get()) != HTTP_STATE_WAITING) {
        if (!connect()) {
            fail(end_ == End::Strange ? End::Strange : End::Nobody);
            return false;
        }
    }
    isSpent_ = true; // until the answer is read to its end
    httpClearFields(http_.get());
    httpSetField(http_.get(), HTTP_FIELD_AUTHORIZATION, authorization_.constData());
    socketLimit_->allow(overheadLimit);
    return true;
}

bool CupsConnection::post(ipp_t *request, const QByteArray &resource, qint64 documentSize, bool asksBefore)
{
    http_t *http = http_.get();
    httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    // With a length, the server never takes a document that was cut off for a complete one.
    httpSetLength(http, ippLength(request) + static_cast<size_t>(documentSize));
    if (asksBefore)
        httpSetExpect(http, HTTP_STATUS_CONTINUE);
    ippSetState(request, IPP_STATE_IDLE);
    bool isSent = httpPost(http, resource.constData()) == 0;
    for (ipp_state_t state = IPP_STATE_IDLE; isSent && state != IPP_STATE_DATA;) {
        state = ippWrite(http, request);
        isSent = state != IPP_STATE_ERROR;
    }
    isSent = isSent && httpFlushWrite(http) >= 0;
    if (asksBefore && (!isSent || httpWait(http, continueLimit) != 0))
        readHead(Head::Next);
    else if (!isSent)
        fail(End::Broken);
    return isSent;
}

bool CupsConnection::write(const char *data, size_t size)
{
    const bool isSent = httpWrite2(http_.get(), data, size) >= 0;
    if (!isSent || httpCheck(http_.get()))
        readHead(Head::Next);
    return isSent && httpStatus_ == HTTP_STATUS_CONTINUE && end_ == End::Answered;
}

bool CupsConnection::removesObstacle(const char *method, const QByteArray &resource)
{
    if (end_ == End::Broken && isUsed_ && !socketLimit_->isOver())
        return true;
    if (end_ != End::Answered)
        return false;
    if (httpStatus_ == HTTP_STATUS_UPGRADE_REQUIRED && !httpIsEncrypted(http_.get())) {
        encryption_ = HTTP_ENCRYPTION_REQUIRED;
        return true;
    }
    return httpStatus_ == HTTP_STATUS_UNAUTHORIZED && authenticate(method, resource);
}

// Its answer

void CupsConnection::fail(End end)
{
    end_ = socketLimit_ && socketLimit_->isExceeded() ? End::Unfit : end;
    isSpent_ = true;
}

void CupsConnection::readHead(Head head)
{
    do
        httpStatus_ = httpUpdate(http_.get());
    while (head == Head::Answer && httpStatus_ == HTTP_STATUS_CONTINUE &&
           httpGetState(http_.get()) != HTTP_STATE_WAITING);
    if (httpStatus_ == HTTP_STATUS_ERROR)
        fail(End::Broken);
    if (httpStatus_ == HTTP_STATUS_OK) {
        login_.reset();
        logins_ = 0;
    }
}

IppPointer CupsConnection::answer()
{
    if (end_ == End::Answered && httpStatus_ == HTTP_STATUS_CONTINUE)
        readHead(Head::Answer);
    if (end_ != End::Answered)
        return nullptr;
    if (httpStatus_ != HTTP_STATUS_OK) {
        fail(End::Http);
        return nullptr;
    }
    return readAnswer();
}

IppPointer CupsConnection::readAnswer()
{
    socketLimit_->allow(answerBytesLimit + overheadLimit);
    InspectedBody body{http_.get(), {}, false};
    IppPointer answer(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippReadIO(&body, readInspected, 1, nullptr, answer.get());
    if (state == IPP_STATE_ERROR || !body.inspection.isAtEnd()) {
        const bool isWhole = httpGetState(http_.get()) == HTTP_STATE_WAITING;
        fail(body.isUnfit || isWhole ? End::Unfit : End::Broken);
        return nullptr;
    }
    readRest();
    if (end_ != End::Answered)
        return nullptr;
    status_ = ippGetStatusCode(answer.get());
    words_ = QString::fromUtf8(textOf(answer.get(), "status-message"));
    if (words_.isEmpty())
        words_ = QString::fromUtf8(ippErrorString(status_));
    return answer;
}

// If the end of the answer does not arrive soon, the next request uses a new connection.
void CupsConnection::readRest()
{
    http_t *http = http_.get();
    std::array<char, 4096> rest = {};
    qint64 size = 0;
    while (httpGetState(http) != HTTP_STATE_WAITING && size <= restBytesLimit) {
        const ssize_t count =
            httpWait(http, restLimit) ? httpRead2(http, rest.data(), rest.size()) : ssize_t(-1);
        if (count <= 0)
            break;
        size += count;
    }
    isUsed_ = true;
    if (size > restBytesLimit)
        fail(End::Unfit);
    else
        isSpent_ = httpGetState(http) != HTTP_STATE_WAITING ||
                   qstricmp(httpGetField(http, HTTP_FIELD_CONNECTION), "close") == 0;
}

http_status_t CupsConnection::fetch(const QByteArray &resource, qsizetype sizeLimit, QByteArray &bytes)
{
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        if (!prepare())
            return HTTP_STATUS_ERROR;
        if (httpGet(http_.get(), resource.constData()) != 0)
            fail(End::Broken);
        else
            readHead(Head::Answer);
        if (!removesObstacle("GET", resource))
            break;
    }
    if (end_ != End::Answered)
        return HTTP_STATUS_ERROR;
    if (httpStatus_ != HTTP_STATUS_OK) {
        fail(End::Http);
        return httpStatus_;
    }
    socketLimit_->allow(sizeLimit + overheadLimit);
    std::array<char, 65536> chunk = {};
    ssize_t count = 0;
    while (bytes.size() <= sizeLimit && (count = httpRead2(http_.get(), chunk.data(), chunk.size())) > 0)
        bytes.append(chunk.data(), count);
    if (bytes.size() > sizeLimit)
        fail(End::Unfit);
    // libcups returns to HTTP_STATE_WAITING only when the complete body was read.
    else if (count < 0 || httpGetState(http_.get()) != HTTP_STATE_WAITING)
        fail(End::Broken);
    else
        isSpent_ = qstricmp(httpGetField(http_.get(), HTTP_FIELD_CONNECTION), "close") == 0;
    isUsed_ = true;
    return end_ == End::Answered ? HTTP_STATUS_OK : HTTP_STATUS_ERROR;
}

} // namespace printdialog
