// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PipeSignalBlock.h"
#include "QueueFault.h"
#include "SocketLimit.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <cups/cups.h>

#include <chrono>
#include <memory>

namespace printdialog {

struct HttpCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};
struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppPointer = std::unique_ptr<ipp_t, IppDeleter>;

/// A connection to the print server of this process (CUPS_SERVER, client.conf, the local socket) that gives
/// up when the server is silent, which libcups' own connection never does. It belongs to the thread that made
/// it. It never asks for a password: a request that needs one is refused.
class CupsConnection
{
public:
    /// Connects. The limit is for connecting and for everything afterwards, until extend() starts it anew; it
    /// holds for a server that sends a byte now and then as well as for a silent one.
    /// @param cancel non-zero once it shall give up, looked at twenty times a second; outlives the
    /// connection; may be null
    explicit CupsConnection(std::chrono::milliseconds limit, int *cancel = nullptr);
    ~CupsConnection();
    Q_DISABLE_COPY_MOVE(CupsConnection)

    bool isOpen() const { return http_ != nullptr; }
    http_t *http() const { return http_.get(); }
    /// Starts the time limit anew, after progress.
    void extend();
    /// Why nobody was reached, for people.
    QString unreachableReason() const;

    bool isCancelled() const;
    /// From now on only the time limit ends it.
    void ignoreCancel();

    /// What libcups' last call on this thread and connection failed with. To be called right after it.
    Failure<QueueFault> lastFailure(const QString &queue) const;

    /// Sends the request, which it takes over; null when there was no answer. The answer may tell of a
    /// failure.
    IppPointer answerTo(IppPointer request, const char *resource);

private:
    static int goesOn(http_t *, void *self);
    /// Whether the server has closed the connection without an answer.
    bool isBroken() const;

    PipeSignalBlock pipeSignalBlock_; ///< outlives the connection
    std::chrono::milliseconds limit_;
    int *cancel_;
    QString server_;
    std::unique_ptr<http_t, HttpCloser> http_;
    std::unique_ptr<SocketLimit> socketLimit_; ///< after what it watches
};

/// What has to be known of a queue before it is used.
struct QueueRecord
{
    QByteArray name;
    QByteArray instance;
    QByteArray uri; ///< The queue's own, as the server gives it.
    QString stateMessage;
    QStringList stateReasons; ///< Keywords.
    bool acceptsJobs = false;
    bool isStopped = false;
};

/// A request with what every request about a printer or job begins with.
/// @param uri of the queue, or of the server ("ipp://localhost/")
IppPointer ippRequest(ipp_op_t operation, const QByteArray &uri);

/// The values of an attribute as texts, as the server sends them; none when it has no such attribute.
QStringList textsOf(ipp_t *answer, const char *attribute);

/// Asks the server about a queue. Failures: NotFound, Refused, TimedOut, Failed.
Result<QueueRecord, QueueFault> queueRecord(CupsConnection &connection, const QString &queueId);

} // namespace printdialog
