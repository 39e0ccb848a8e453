// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppMessage.h"
#include "PipeSignalBlock.h"
#include "QueueFault.h"
#include "SocketLimit.h"

#include <QtCore/QByteArray>

#include <chrono>
#include <memory>

namespace printdialog {

struct HttpCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};

/// A connection to the print server of this process (CUPS_SERVER, client.conf, the local socket) that gives
/// up when the server is silent, which libcups' own connection never does, and reads no more than an answer
/// may hold (IppInspection.h). All requests go through here: what libcups has for whole requests
/// (cupsDoRequest, cupsSendRequest, cupsGetFd) reads without limits and connects again past SocketLimit. It
/// belongs to the thread that made it. It never asks for a password: a request that needs one is refused.
class CupsConnection
{
public:
    /// Connects for the first request, and again for one that finds the connection closed. The limit is for
    /// connecting and for everything afterwards, until extend() starts it anew; it holds for a server that
    /// sends a byte now and then as well as for a silent one.
    /// @param cancel see heed()
    explicit CupsConnection(std::chrono::milliseconds limit, int *cancel = nullptr);
    ~CupsConnection();
    Q_DISABLE_COPY_MOVE(CupsConnection)

    /// Starts the time limit anew, after progress.
    void extend();
    /// Starts another one.
    void extend(std::chrono::milliseconds limit);

    bool isCancelled() const;
    /// From now on this flag, non-zero, ends what is under way, besides the time limit. Looked at twenty
    /// times a second; outlives the connection; may be null.
    void heed(int *cancel);

    /// Sends the request, and reads the answer; null when there is none that can be used. The answer may tell
    /// of a failure: see status().
    IppPointer answerTo(IppPointer request, const char *resource);

    // A request with a document:

    /// Sends the request. Whether the server wants the document: otherwise its answer is there.
    bool begin(ipp_t *request, const QByteArray &resource, qint64 documentSize);
    /// Sends a part of the document. False: the server takes no more of it, which its answer may explain.
    bool write(const char *data, size_t size);
    IppPointer answer();

    /// Fetches a file; its bytes only when the status is HTTP_STATUS_OK. HTTP_STATUS_ERROR: see
    /// lastFailure().
    /// @param sizeLimit more is not read, and a failure
    http_status_t fetch(const QByteArray &resource, qsizetype sizeLimit, QByteArray &bytes);

    /// The status in the last answer to an IPP request; IPP_STATUS_ERROR_INTERNAL when there was none.
    ipp_status_t status() const { return status_; }
    bool hasSucceeded() const { return status_ <= IPP_STATUS_OK_CONFLICTING; }
    /// Whether the last request failed because the connection broke.
    bool isBroken() const { return end_ == End::Broken; }
    /// What the last request failed with, or else that the server has not answered what was asked.
    Failure<QueueFault> lastFailure(const QString &queue) const;

private:
    /// For an answer's head, and as much for its body's framing and encryption.
    static constexpr qint64 overheadLimit = qint64(512) * 1024;

    /// How the last request ended.
    enum class End {
        Answered, ///< See status_.
        Http,     ///< The server has refused it before it was IPP; see httpStatus_.
        Nobody,   ///< Nobody was there.
        Broken,   ///< The connection broke.
        Unfit     ///< The answer is too large or malformed.
    };

    bool isOpen() const { return socketLimit_ != nullptr; }
    QString unreachableReason() const;
    bool connect();
    void disconnect();
    /// A connection for one more request.
    bool prepare();
    bool post(ipp_t *request, const QByteArray &resource, qint64 documentSize, bool asksBefore);
    /// Whether the request may have success when it is sent again, over another connection: a server closes
    /// one that was idle, and may want encryption or to know who asks.
    bool removesObstacle(const char *method, const QByteArray &resource);
    /// Waits for the head of the answer itself, or only for what comes next: that the server wants the
    /// document is not an answer yet.
    enum class Head { Answer, Next };
    void readHead(Head head);
    IppPointer readAnswer();
    void readRest();
    void fail(End end);

    PipeSignalBlock pipeSignalBlock_; ///< outlives the connection
    std::chrono::milliseconds limit_;
    SocketLimit::Clock::time_point deadline_;
    int *cancel_;
    QString server_;
    http_encryption_t encryption_ = HTTP_ENCRYPTION_IF_REQUESTED;
    QByteArray authorization_;
    std::unique_ptr<http_t, HttpCloser> http_;
    std::unique_ptr<SocketLimit> socketLimit_; ///< before what it watches is closed

    bool isUsed_ = false;  ///< an earlier request has had its answer over this connection
    bool isSpent_ = false; ///< the connection is of no use for another request
    http_status_t httpStatus_ = HTTP_STATUS_CONTINUE; ///< of the request under way; continue: no head yet
    End end_ = End::Answered;
    ipp_status_t status_ = IPP_STATUS_OK;
    QString words_; ///< the server's, about status_
};

} // namespace printdialog
