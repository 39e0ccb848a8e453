// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <chrono>
#include <mutex>
#include <thread>

typedef struct _http_s http_t; // NOLINT(bugprone-reserved-identifier): libcups names it so

namespace printdialog {

/// Stands between libcups and the server's socket, and ends the connection once its time is over, the work is
/// given up, or the server has sent more than is allowed, so that whatever call is under way returns.
/// libcups' own limit counts silence only, which a server that sends one byte a second never exceeds; and it
/// keeps the headers of an answer however many there are. A thread of its own passes the bytes on.
class SocketLimit
{
public:
    using Clock = std::chrono::steady_clock;

    /// Takes the place of the connection's socket, under the same descriptor. What libcups connects again by
    /// itself goes past it.
    /// @param http outlives this object
    /// @param cancel non-zero: give up; may be null, otherwise outlives this object
    SocketLimit(http_t *http, Clock::time_point deadline, int *cancel);
    ~SocketLimit();
    Q_DISABLE_COPY_MOVE(SocketLimit)

    /// Whether it stands there; otherwise there were no descriptors left, and the connection is of no use.
    bool isInPlace() const { return thread_.joinable(); }
    void setDeadline(Clock::time_point deadline);
    void heed(int *cancel);
    /// How many bytes the server may send from now on; none at first. More of them wait, and when libcups
    /// waits for them, too, the connection is ended after a second.
    void allow(qint64 bytes);

    /// Whether the time is over, or was when the connection was ended, or the work was given up.
    bool isOver();
    /// Whether the connection was ended because the server had sent more than was allowed.
    bool isExceeded();

private:
    /// Bytes on their way.
    struct Stretch;
    enum class Flow { Goes, Waits, Ended };

    bool takePlace(http_t *http);
    void passOn();
    bool mustEnd(int &milliseconds);
    bool isHeld();
    bool isStarving() const;
    Flow receiveAllowed(Stretch &stretch);
    static Flow receive(int socket, Stretch &stretch, size_t most);
    static Flow send(int socket, Stretch &stretch);

    int server_ = -1; ///< the server's socket
    int inner_ = -1;  ///< the other end of what libcups uses
    int wake_ = -1;
    std::mutex mutex_; // for what follows
    int *cancel_;
    Clock::time_point deadline_;
    qint64 allowed_ = 0;
    bool isOver_ = false;
    bool isExceeded_ = false;
    Clock::time_point fedAt_; ///< when libcups was last seen not to wait for what is held back
    bool ends_ = false;
    std::thread thread_;
};

} // namespace printdialog
