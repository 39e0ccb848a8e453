// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SocketLimit.h"

#include <cups/http.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto lookInterval = 50ms;

} // namespace

SocketLimit::SocketLimit(http_t *http, Clock::time_point deadline, int *cancel)
    : http_(http)
    , cancel_(cancel)
    , deadline_(deadline)
{
    // Signals are for the application's own threads.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    thread_ = std::thread([this] { watch(); });
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

SocketLimit::~SocketLimit()
{
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void SocketLimit::setDeadline(Clock::time_point deadline)
{
    const std::lock_guard lock(mutex_);
    deadline_ = deadline;
}

void SocketLimit::ignoreCancel()
{
    const std::lock_guard lock(mutex_);
    cancel_ = nullptr;
}

bool SocketLimit::isOver()
{
    const std::lock_guard lock(mutex_);
    return isOverLocked();
}

bool SocketLimit::isOverLocked() const
{
    return (cancel_ && std::atomic_ref(*cancel_).load() != 0) || Clock::now() >= deadline_;
}

void SocketLimit::watch()
{
    std::unique_lock lock(mutex_);
    while (!ends_) {
        // The cancel flag has nobody who would wake this thread.
        const auto untilLook = Clock::now() + lookInterval;
        changed_.wait_until(lock, cancel_ ? std::min(untilLook, std::max(deadline_, Clock::now() + 1ms))
                                          : std::max(deadline_, untilLook));
        if (!ends_ && isOverLocked())
            shutDown();
    }
}

// The other thread may be closing this very descriptor, whose number then goes to something else: what is
// shut is a copy that has turned out to be a connected socket of the same kind as the server's.
void SocketLimit::shutDown() const
{
    const int copy = fcntl(httpGetFd(http_), F_DUPFD_CLOEXEC, 0);
    if (copy < 0)
        return;
    sockaddr_storage peer = {};
    socklen_t length = sizeof peer;
    const bool isServer = getpeername(copy, reinterpret_cast<sockaddr *>(&peer), &length) == 0 &&
                          peer.ss_family == httpAddrFamily(httpGetAddress(http_));
    if (isServer)
        shutdown(copy, SHUT_RDWR);
    close(copy);
}

} // namespace printdialog
