// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

typedef struct _http_s http_t; // NOLINT(bugprone-reserved-identifier): libcups names it so

namespace printdialog {

/// Shuts a connection of libcups down once its time is over or the work is given up, so that whatever call is
/// under way on it returns. libcups' own limit counts silence only: a server that sends one byte a second
/// never exceeds it. A thread of its own watches; from the deadline on also what libcups connects anew.
class SocketLimit
{
public:
    using Clock = std::chrono::steady_clock;

    /// @param http outlives this object
    /// @param cancel non-zero: give up; may be null, otherwise outlives this object
    SocketLimit(http_t *http, Clock::time_point deadline, int *cancel);
    ~SocketLimit();
    Q_DISABLE_COPY_MOVE(SocketLimit)

    void setDeadline(Clock::time_point deadline);
    void ignoreCancel();
    /// Whether the time is over or the work was given up.
    bool isOver();

private:
    void watch();
    bool isOverLocked() const;
    void shutDown() const;

    http_t *http_;
    int *cancel_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Clock::time_point deadline_;
    bool ends_ = false;
    std::thread thread_;
};

} // namespace printdialog
