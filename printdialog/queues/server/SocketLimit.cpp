// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SocketLimit.h"

#include <cups/http.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <linux/sockios.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto lookInterval = 50ms; // for polling the cancel flag, which cannot wake the thread

/// Longer than a busy machine takes between reading an answer's head and allowing its body.
constexpr auto starvingLimit = 1s;

void closeAll(std::initializer_list<int> descriptors)
{
    for (const int descriptor : descriptors) {
        if (descriptor >= 0)
            close(descriptor);
    }
}

short events(bool reads, bool writes)
{
    return static_cast<short>((reads ? POLLIN : 0) | (writes ? POLLOUT : 0));
}

} // namespace

struct SocketLimit::Stretch
{
    std::array<char, 65536> bytes = {};
    size_t begin = 0;
    size_t end = 0;
    bool isCut = false; ///< the sender has ended, or the receiver no longer reads

    bool isEmpty() const { return begin == end; }
};

SocketLimit::SocketLimit(http_t *http, Clock::time_point deadline, int *cancel)
    : cancel_(cancel)
    , deadline_(deadline)
{
    if (!insertRelay(http))
        return;
    // Block signals, so that the application's own threads handle them.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    thread_ = std::thread([this] { passOn(); });
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

SocketLimit::~SocketLimit()
{
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            ends_ = true;
        }
        eventfd_write(wake_, 1);
        thread_.join();
    }
    closeAll({server_, inner_, wake_});
}

bool SocketLimit::insertRelay(http_t *http)
{
    const int used = httpGetFd(http);
    int pair[2] = {-1, -1};
    server_ = fcntl(used, F_DUPFD_CLOEXEC, 0);
    wake_ = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    const bool isDone = server_ >= 0 && wake_ >= 0 &&
                        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair) == 0 &&
                        dup3(pair[0], used, O_CLOEXEC) == used;
    closeAll({pair[0]});
    inner_ = pair[1];
    return isDone;
}

void SocketLimit::setDeadline(Clock::time_point deadline)
{
    bool isEarlier = false;
    {
        const std::lock_guard lock(mutex_);
        isEarlier = deadline < deadline_;
        deadline_ = deadline;
    }
    if (isEarlier)
        eventfd_write(wake_, 1);
}

void SocketLimit::heed(int *cancel)
{
    {
        const std::lock_guard lock(mutex_);
        cancel_ = cancel;
    }
    eventfd_write(wake_, 1);
}

void SocketLimit::allow(qint64 bytes)
{
    {
        const std::lock_guard lock(mutex_);
        allowed_ = bytes;
    }
    eventfd_write(wake_, 1);
}

bool SocketLimit::isOver()
{
    const std::lock_guard lock(mutex_);
    return isOver_ || (cancel_ && std::atomic_ref(*cancel_).load() != 0) || Clock::now() >= deadline_;
}

bool SocketLimit::isExceeded()
{
    const std::lock_guard lock(mutex_);
    return isExceeded_;
}

/// @param milliseconds set to the time until the next check
bool SocketLimit::mustEnd(int &milliseconds)
{
    const std::lock_guard lock(mutex_);
    const auto now = Clock::now();
    isOver_ = isOver_ || (cancel_ && std::atomic_ref(*cancel_).load() != 0) || now >= deadline_;
    if (allowed_ > 0 || !isStarving())
        fedAt_ = now;
    isExceeded_ = isExceeded_ || now - fedAt_ >= starvingLimit;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline_ - now);
    const bool looks = cancel_ || allowed_ <= 0;
    const auto wait = looks ? std::min<std::chrono::milliseconds>(left, lookInterval) : left;
    milliseconds = static_cast<int>(std::clamp<std::chrono::milliseconds>(wait, 0ms, 60s).count());
    return ends_ || isOver_ || isExceeded_;
}

/// Whether the server sends more than is allowed, and libcups has read everything that was.
bool SocketLimit::isStarving() const
{
    pollfd more = {server_, POLLIN, 0};
    int unread = 0;
    return ioctl(inner_, SIOCOUTQ, &unread) == 0 && unread == 0 && poll(&more, 1, 0) == 1 &&
           (more.revents & POLLIN) != 0;
}

bool SocketLimit::isHeld()
{
    const std::lock_guard lock(mutex_);
    return allowed_ <= 0;
}

SocketLimit::Flow SocketLimit::receiveAllowed(Stretch &stretch)
{
    const std::lock_guard lock(mutex_);
    const Flow flow =
        receive(server_, stretch,
                static_cast<size_t>(std::min<qint64>(allowed_, static_cast<qint64>(stretch.bytes.size()))));
    allowed_ -= static_cast<qint64>(stretch.end);
    return flow;
}

SocketLimit::Flow SocketLimit::receive(int socket, Stretch &stretch, size_t most)
{
    const ssize_t size = recv(socket, stretch.bytes.data(), most, MSG_DONTWAIT);
    stretch.begin = 0;
    stretch.end = static_cast<size_t>(std::max<ssize_t>(size, 0));
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return Flow::Waits;
    return size > 0 ? Flow::Goes : Flow::Ended;
}

SocketLimit::Flow SocketLimit::send(int socket, Stretch &stretch)
{
    const ssize_t size = ::send(socket, stretch.bytes.data() + stretch.begin, stretch.end - stretch.begin,
                                MSG_DONTWAIT | MSG_NOSIGNAL);
    if (size < 0)
        return errno == EAGAIN || errno == EINTR ? Flow::Waits : Flow::Ended;
    stretch.begin += static_cast<size_t>(size);
    return Flow::Goes;
}

// A server that reads no more may have said why: that is passed on, while libcups' writes fail.
void SocketLimit::passOn()
{
    const auto request = std::make_unique<Stretch>();
    const auto answer = std::make_unique<Stretch>();
    int milliseconds = 0;
    while (!mustEnd(milliseconds) && !(request->isCut && answer->isCut)) {
        const bool isFree = !answer->isCut && answer->isEmpty() && !isHeld();
        std::array<pollfd, 3> ends = {
            pollfd{server_, events(isFree, !request->isCut && !request->isEmpty()), 0},
            pollfd{inner_, events(!request->isCut && request->isEmpty(), !answer->isEmpty()), 0},
            pollfd{wake_, POLLIN, 0}};
        // poll(2) would report a hang-up again and again, so an end with nothing to wait for is left out.
        for (pollfd &end : ends)
            end.fd = end.events ? end.fd : -1;
        if (poll(ends.data(), ends.size(), milliseconds) <= 0)
            continue;
        eventfd_t woken = 0;
        if (ends[2].revents)
            eventfd_read(wake_, &woken);
        if (ends[0].revents && isFree)
            answer->isCut = receiveAllowed(*answer) == Flow::Ended;
        if (ends[1].revents && !request->isCut && request->isEmpty() &&
            receive(inner_, *request, request->bytes.size()) == Flow::Ended)
            break; // libcups has closed its end
        if (!request->isCut && !request->isEmpty() && send(server_, *request) == Flow::Ended) {
            request->isCut = true;
            shutdown(inner_, SHUT_RD);
        }
        if (!answer->isEmpty() && send(inner_, *answer) == Flow::Ended)
            break;
        if (answer->isCut && answer->isEmpty())
            shutdown(inner_, SHUT_WR);
    }
    shutdown(inner_, SHUT_RDWR);
    shutdown(server_, SHUT_RDWR);
}

} // namespace printdialog
