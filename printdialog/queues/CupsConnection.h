// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QueueFault.h"

#include <QtCore/QByteArray>

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
    /// Connects. The limit is for connecting and for everything afterwards, until extend() starts it anew.
    /// @param cancel non-zero once it shall give up, looked at ten times a second; outlives the connection;
    /// may be null
    explicit CupsConnection(std::chrono::milliseconds limit, int *cancel = nullptr);
    Q_DISABLE_COPY_MOVE(CupsConnection)

    bool isOpen() const { return http_ != nullptr; }
    http_t *http() const { return http_.get(); }
    /// Starts the time limit anew, after progress.
    void extend();
    /// Why nobody was reached, for people.
    QString unreachableReason() const;

    /// What libcups' last call on this thread and connection failed with. To be called right after it.
    Failure<QueueFault> lastFailure(const QString &queue) const;

    /// Sends the request, which it takes over; null when there was no answer. The answer may tell of a
    /// failure.
    IppPointer answerTo(IppPointer request, const char *resource);

private:
    static int goesOn(http_t *, void *self);

    std::chrono::milliseconds limit_;
    std::chrono::steady_clock::time_point deadline_;
    int *cancel_;
    bool timedOut_ = false;
    QString server_;
    std::unique_ptr<http_t, HttpCloser> http_;
};

/// What has to be known of a queue before it is used.
struct QueueRecord
{
    QByteArray name;
    QByteArray instance;
    QByteArray uri; ///< The queue's own, as the server gives it.
    QString stateMessage;
    bool acceptsJobs = false;
};

/// Asks the server about a queue. Failures: NotFound, Refused, TimedOut, Failed.
Result<QueueRecord, QueueFault> queueRecord(CupsConnection &connection, const QString &queueId);

} // namespace printdialog
