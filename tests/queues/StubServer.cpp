// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StubServer.h"

#include <QtCore/QFile>

#include <chrono>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace testing_support {

namespace {

/// An IPP message that says "successful" and no more.
const QByteArray successfulAnswer = QByteArray::fromHex("020000000000000101") +
                                    QByteArray("\x47\x00\x12", 3) + "attributes-charset" +
                                    QByteArray("\x00\x05", 2) + "utf-8" + QByteArray("\x48\x00\x1b", 3) +
                                    "attributes-natural-language" + QByteArray("\x00\x02", 2) + "en" + "\x03";

bool put(int client, const QByteArray &bytes)
{
    return send(client, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL) == bytes.size();
}

bool receive(int client, QByteArray &bytes)
{
    char buffer[4096];
    const ssize_t count = recv(client, buffer, sizeof buffer, 0);
    if (count > 0)
        bytes.append(buffer, count);
    return count > 0;
}

QByteArray header(const QByteArray &type, qsizetype length)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type + "\r\nContent-Length: " + QByteArray::number(length) +
           "\r\n\r\n";
}

} // namespace

StubServer::StubServer(Manner manner)
    : manner_(manner)
    , serverBefore_(qgetenv("CUPS_SERVER"))
    , listener_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const QByteArray path = QFile::encodeName(folder_.filePath(QStringLiteral("cups.sock")));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    if (bind(listener_, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 ||
        listen(listener_, 16) != 0)
        qFatal("the stub server cannot listen");
    qputenv("CUPS_SERVER", path);
    thread_ = std::thread([this] { serve(); });
}

StubServer::~StubServer()
{
    ends_ = true;
    shutdown(listener_, SHUT_RDWR);
    thread_.join();
    close(listener_);
    if (serverBefore_.isNull())
        qunsetenv("CUPS_SERVER");
    else
        qputenv("CUPS_SERVER", serverBefore_);
}

void StubServer::serve()
{
    for (int client = -1; (client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        if (manner_ == Manner::Silent) {
            held_.append(client);
            continue;
        }
        answer(client);
        close(client);
    }
    for (const int client : held_)
        close(client);
}

void StubServer::answer(int client)
{
    QByteArray bytes;
    while (receive(client, bytes)) {
        if (manner_ == Manner::Trickling) {
            while (!ends_ && put(client, "H"))
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            return;
        }
        if (bytes.startsWith("GET ") && bytes.contains("\r\n\r\n")) {
            const qsizetype length = qsizetype(40) * 1024 * 1024;
            put(client, header("application/vnd.cups-ppd", length) +
                            (manner_ == Manner::Overflowing ? QByteArray(length, '*') : "*PPD-Adobe"));
            return;
        }
        // A request ends with IPP's end-of-attributes tag.
        if (bytes.contains("\r\n\r\n") && bytes.endsWith("\r\n\r\n"))
            put(client, "HTTP/1.1 100 Continue\r\n\r\n");
        else if (bytes.endsWith('\x03')) {
            put(client, header("application/ipp", successfulAnswer.size()) + successfulAnswer);
            bytes.clear();
        }
    }
}

} // namespace testing_support
