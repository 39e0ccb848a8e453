// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <chrono>
#include <mutex>
#include <thread>

typedef struct _http_s http_t; // NOLINT(bugprone-reserved-identifier): libcups' name

namespace printdialog {

/// A relay between libcups and the server's socket. It ends the connection when the time is over, the work is
/// canceled, or the server has sent more than is allowed, so that the current libcups call returns. libcups'
/// own limit covers only silence, which a server that sends one byte a second never exceeds, and libcups
/// stores any number of headers. A separate thread relays the bytes.
class SocketLimit
{
public:
    using Clock = std::chrono::steady_clock;

    /// Replaces the connection's socket, under the same descriptor. A connection that libcups reopens itself
    /// is not limited.
    /// @param http outlives this object
    /// @param cancel non-zero: give up; may be null, else must outlive this object
    SocketLimit(http_t *http, Clock::time_point deadline, int *cancel);
    ~SocketLimit();
    Q_DISABLE_COPY_MOVE(SocketLimit)

    /// Whether the relay works; false when no descriptors were left, and the connection cannot be used.
    bool isInPlace() const { return thread_.joinable(); }
    void setDeadline(Clock::time_point deadline);
    void heed(int *cancel);
    /// Sets how many bytes the server may send from now on; initially 0. Further bytes are held back, and if
    /// libcups waits for them, the connection is ended after a second.
    void allow(qint64 bytes);

    /// Whether the time is over, or was when the connection ended, or the work was canceled.
    bool isOver();
    /// Whether the connection was ended because the server sent more than was allowed.
    bool isExceeded();

private:
    /// Bytes being relayed in one direction.
    struct Stretch;
    enum class Flow { Goes, Waits, Ended };

    bool insertRelay(http_t *http);
    void passOn();
    bool mustEnd(int &milliseconds);
    bool isHeld();
    bool isStarving() const;
    Flow receiveAllowed(Stretch &stretch);
    static Flow receive(int socket, Stretch &stretch, size_t most);
    static Flow send(int socket, Stretch &stretch);

    int server_ = -1; ///< the server's socket
    int inner_ = -1;  ///< the other end of libcups' socket
    int wake_ = -1;
    std::mutex mutex_; // guards the members below
    int *cancel_;
    Clock::time_point deadline_;
    qint64 allowed_ = 0;
    bool isOver_ = false;
    bool isExceeded_ = false;
    Clock::time_point fedAt_; ///< when libcups was last seen not waiting for held-back bytes
    bool ends_ = false;
    std::thread thread_;
};

} // namespace printdialog
