// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CuttingProxy.h"

#include <QtCore/QFile>

#include <array>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace testing_support {

namespace {

sockaddr_un addressOf(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    return address;
}

} // namespace

CuttingProxy::CuttingProxy(const QString &server, int cutAt)
    : server_(QFile::encodeName(server))
    , cutAt_(cutAt)
    , listener_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const sockaddr_un address = addressOf(QFile::encodeName(socketPath()));
    if (::bind(listener_, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 ||
        listen(listener_, 16) != 0)
        qFatal("the proxy cannot listen");
    thread_ = std::thread([this] { serve(); });
}

CuttingProxy::~CuttingProxy()
{
    shutdown(listener_, SHUT_RDWR);
    thread_.join();
    if (listener_ >= 0)
        close(listener_);
}

QString CuttingProxy::socketPath() const
{
    return folder_.filePath(QStringLiteral("cups.sock"));
}

// One connection after the other, which is how the program makes them.
void CuttingProxy::serve()
{
    for (int client = -1; (client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        const bool isGone = !join(client);
        if (isGone) {
            // First, so that nobody comes back to a server that is going.
            unlink(QFile::encodeName(socketPath()).constData());
            close(listener_.exchange(-1));
            hasCut_ = true;
        }
        close(client);
        if (isGone)
            return;
    }
}

bool CuttingProxy::join(int client)
{
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = addressOf(server_);
    bool isOpen = ::connect(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    bool isThere = true;
    while (isOpen && isThere) {
        std::array<pollfd, 3> ends = {{{client, POLLIN, 0}, {server, POLLIN, 0}, {listener_, POLLHUP, 0}}};
        ends[2].events = 0;
        if (poll(ends.data(), ends.size(), -1) < 0 || ends[2].revents != 0)
            break;
        if (ends[0].revents != 0)
            isThere = handOn(client, server, isOpen);
        hasCutRequest_ = !isThere;
        if (isThere && isOpen && ends[1].revents != 0)
            isThere = handOn(server, client, isOpen);
    }
    close(server);
    return isThere;
}

bool CuttingProxy::handOn(int from, int to, bool &isOpen)
{
    std::array<char, 65536> bytes = {};
    const ssize_t count = recv(from, bytes.data(), bytes.size(), 0);
    if (count <= 0) {
        isOpen = false;
        return true;
    }
    if (++pieces_ == cutAt_)
        return false;
    isOpen = send(to, bytes.data(), static_cast<size_t>(count), MSG_NOSIGNAL) == count;
    return true;
}

} // namespace testing_support
