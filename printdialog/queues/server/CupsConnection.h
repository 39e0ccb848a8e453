// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppMessage.h"
#include "Logins.h"
#include "PipeSignalBlock.h"
#include "PrinterAddress.h"
#include "QueueFault.h"
#include "SocketLimit.h"

#include <QtCore/QByteArray>

#include <chrono>
#include <memory>
#include <optional>

namespace printdialog {

struct HttpCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};

/// A connection to the print server of this process (CUPS_SERVER, client.conf, the local socket), or directly
/// to a printer. Unlike
/// libcups' own connection, it gives up when the server is silent, and it limits the size of an answer
/// (IppInspection.h). All requests go through it: libcups' functions for complete requests (cupsDoRequest,
/// cupsSendRequest, cupsGetFd) read without limits and reconnect past SocketLimit. Use it only on the thread
/// that made it. Where a server wants a name and a password (HTTP 401), it asks for them (Logins) while the
/// time limit rests.
class CupsConnection
{
public:
    /// Connects at the first request, and again at one that finds the connection closed. The limit covers
    /// connecting and everything afterwards until extend() restarts it. It applies to a server that sends a
    /// byte now and then as well as to a silent one.
    /// @param cancel see heed()
    /// @param printer connect to it instead; all requests then go to its resource, whichever they name
    explicit CupsConnection(std::chrono::milliseconds limit, int *cancel = nullptr,
                            const std::optional<PrinterAddress> &printer = std::nullopt);
    ~CupsConnection();
    Q_DISABLE_COPY_MOVE(CupsConnection)

    /// Restarts the time limit; call after progress.
    void extend();
    /// Starts another time limit.
    void extend(std::chrono::milliseconds limit);

    bool isCanceled() const;
    /// Sets the flag that, when non-zero, ends the request under way like the time limit does. Polled twenty
    /// times a second; must outlive the connection; may be null.
    void heed(int *cancel);

    /// Sends the request and reads the answer; null when there is no usable one. The answer may report a
    /// failure: see status().
    IppPointer answerTo(IppPointer request, const char *resource);

    /// The address that requests about jobs name: the server's, or the printer's.
    QByteArray jobsUri() const;

    // A request with a document:

    /// Sends the request. True: the server wants the document; false: read answer().
    bool begin(ipp_t *request, const QByteArray &resource, qint64 documentSize);
    /// Sends a part of the document. False: the server accepts no more of it; its answer may say why.
    bool write(const char *data, size_t size);
    IppPointer answer();
    /// Whether the document was sent, and then refused for want of a login. If so, logIn() gets one; when it
    /// has succeeded, the request and its document may be sent again.
    bool wantsLogin() const { return end_ == End::Http && httpStatus_ == HTTP_STATUS_UNAUTHORIZED; }
    bool logIn(const QByteArray &resource);

    /// The printer that a login is asked for, by its id; the server itself when there is none.
    void actFor(const QString &printer) { actsFor_ = printer; }
    QString server() const { return server_; }
    /// Whether nobody else can read what is sent: it is encrypted, or does not leave the computer. False
    /// before the first request.
    bool isPrivate() const;

    /// Fetches a file. `bytes` is set only when the status is HTTP_STATUS_OK. HTTP_STATUS_ERROR: see
    /// lastFailure().
    /// @param sizeLimit a longer file is a failure, and not read further
    http_status_t fetch(const QByteArray &resource, qsizetype sizeLimit, QByteArray &bytes);

    /// The status in the last answer to an IPP request; IPP_STATUS_ERROR_INTERNAL when there was none.
    ipp_status_t status() const { return status_; }
    bool hasSucceeded() const { return status_ <= IPP_STATUS_OK_CONFLICTING; }
    /// Whether the last request failed because the connection broke.
    bool isBroken() const { return end_ == End::Broken; }
    /// Whether the last request was sent, and no usable answer came: the server may have done what it was
    /// asked for. Reaching the time limit is a failure of its own.
    bool isUnanswered() const { return end_ == End::Broken || end_ == End::Unfit; }
    /// The failure of the last request, or else that the server's answer was not usable.
    Failure<QueueFault> lastFailure(const QString &queue) const;

private:
    /// Bytes allowed for an answer's head, and as many for its body's framing and encryption.
    static constexpr qint64 overheadLimit = qint64(512) * 1024;

    /// How the last request ended.
    enum class End {
        Answered, ///< See status_.
        Http,     ///< The server refused it at the HTTP level; see httpStatus_.
        Nobody,   ///< Nothing listens at the address.
        Broken,   ///< The connection broke.
        Strange,  ///< The printer's certificate is not to be trusted.
        Unfit     ///< The answer is too large or malformed.
    };

    bool isOpen() const { return socketLimit_ != nullptr; }
    QString unreachableReason() const;
    bool connect();
    bool isTrusted();
    void disconnect();
    /// Makes sure that the connection is ready for another request.
    bool prepare();
    bool post(ipp_t *request, const QByteArray &resource, qint64 documentSize, bool asksBefore);
    /// Whether the request may succeed when it is sent again over a new connection: a server closes idle
    /// connections, and may require encryption or authentication.
    bool removesObstacle(const char *method, const QByteArray &resource);
    bool authenticate(const char *method, const QByteArray &resource);
    /// libcups' callback for passwords.
    static const char *askLogin(const char *, http_t *, const char *, const char *, void *connection);
    bool takeLogin();
    /// Waits for the head of the final answer, or for the next one, which may only be "100 Continue".
    enum class Head { Answer, Next };
    void readHead(Head head);
    IppPointer readAnswer();
    void readRest();
    void fail(End end);

    PipeSignalBlock pipeSignalBlock_; ///< outlives the connection
    std::chrono::milliseconds limit_;
    SocketLimit::Clock::time_point deadline_;
    int *cancel_;
    std::optional<PrinterAddress> printer_;
    QString server_;
    int port_ = 0;
    http_encryption_t encryption_ = HTTP_ENCRYPTION_IF_REQUESTED;
    QByteArray authorization_;
    QString actsFor_;
    std::optional<Login> login_; ///< given to the server, and not accepted so far
    QByteArray password_;        ///< of the login, while libcups reads it
    int logins_ = 0;             ///< given since one was accepted
    QString whyNoLogin_;         ///< for people
    std::unique_ptr<http_t, HttpCloser> http_;
    std::unique_ptr<SocketLimit> socketLimit_; ///< destroyed before the socket that it watches is closed

    bool isUsed_ = false;  ///< an earlier request was answered over this connection
    bool isSpent_ = false; ///< the connection cannot be used for another request
    http_status_t httpStatus_ = HTTP_STATUS_CONTINUE; ///< of the current request; CONTINUE: no head yet
    End end_ = End::Answered;
    ipp_status_t status_ = IPP_STATUS_OK;
    QString words_; ///< the server's message about status_
};

} // namespace printdialog
