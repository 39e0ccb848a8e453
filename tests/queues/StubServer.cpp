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

constexpr qint64 endless = qint64(512) * 1024 * 1024;

QByteArray lengthOf(qsizetype size)
{
    return QByteArray(1, static_cast<char>(size >> 8)) + static_cast<char>(size & 0xff);
}

QByteArray attribute(char tag, const QByteArray &name, const QByteArray &value)
{
    return QByteArray(1, tag) + lengthOf(name.size()) + name + lengthOf(value.size()) + value;
}

/// The beginning of an IPP message that says "successful".
const QByteArray successfulHead = QByteArray::fromHex("020000000000000101") +
                                  attribute(0x47, "attributes-charset", "utf-8") +
                                  attribute(0x48, "attributes-natural-language", "en");
const char endOfAttributes = 0x03;

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

QByteArray whole(const QByteArray &message)
{
    return header("application/ipp", message.size()) + message;
}

/// Whether it is complete, with the document.
bool isWhole(const QByteArray &request)
{
    const qsizetype head = request.indexOf("\r\n\r\n");
    const qsizetype field = request.indexOf("Content-Length: ");
    if (head < 0 || request.startsWith("GET "))
        return head >= 0;
    const qsizetype length = request.mid(field + 16, request.indexOf('\r', field) - field - 16).toLongLong();
    return request.size() >= head + 4 + length;
}

bool isPrintJob(const QByteArray &request)
{
    return request.mid(request.indexOf("\r\n\r\n") + 6, 2) == QByteArray("\x00\x02", 2);
}

bool isForAttributes(const QByteArray &request)
{
    return request.contains(attribute(0x44, "requested-attributes", "all"));
}

} // namespace

StubServer::StubServer(Manner manner, Requests requests)
    : manner_(manner)
    , requests_(requests)
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
        ++connections_;
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

bool StubServer::put(int client, const QByteArray &bytes) const
{
    return !ends_ &&
           send(client, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL) == bytes.size();
}

void StubServer::repeat(int client, const std::function<QByteArray(qint64)> &block, qint64 size) const
{
    for (qint64 sent = 0, number = 0; sent < size; ++number) {
        const QByteArray bytes = block(number);
        sent += bytes.size();
        if (!put(client, bytes))
            return;
    }
}

void StubServer::answer(int client)
{
    QByteArray bytes;
    while (receive(client, bytes)) {
        if (bytes.contains("100-continue"))
            put(client, "HTTP/1.1 100 Continue\r\n\r\n");
        if (!isWhole(bytes))
            continue;
        const bool isFile = bytes.startsWith("GET ");
        if (manner_ == Manner::Locked && !unlocks(client, bytes)) {
            bytes.clear();
            continue;
        }
        if (manner_ == Manner::Locked) {
            put(client, isPrintJob(bytes)
                            ? whole(successfulHead + '\x02' +
                                    attribute(0x21, "job-id", QByteArray("\0\0\0\7", 4)) + endOfAttributes)
                            : whole(successfulHead + endOfAttributes));
            bytes.clear();
            continue;
        }
        if (requests_ == Requests::All || (requests_ == Requests::Files && isFile) ||
            (requests_ == Requests::Jobs && isPrintJob(bytes)) ||
            (requests_ == Requests::Attributes && isForAttributes(bytes))) {
            misbehave(client);
            return;
        }
        put(client, isFile ? header("application/vnd.cups-ppd", 9) + "*PPD-Adobe"
                           : whole(successfulHead + endOfAttributes));
        bytes.clear();
    }
}

/// Otherwise refuses the request.
bool StubServer::unlocks(int client, const QByteArray &request)
{
    const QByteArray field = "Authorization: ";
    const qsizetype at = request.indexOf(field);
    const qsizetype from = at + field.size();
    const QByteArray given = at < 0 ? QByteArray() : request.mid(from, request.indexOf('\r', from) - from);
    const bool isRightRequest = requests_ == Requests::All || isPrintJob(request);
    {
        const std::lock_guard lock(mutex_);
        authorizations_ += given;
    }
    if (!isRightRequest || given == "Basic " + QByteArray("max:geheim").toBase64())
        return true;
    put(client, "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\n"
                "Content-Length: 0\r\n\r\n");
    return false;
}

void StubServer::misbehave(int client)
{
    const auto block = [](const QByteArray &bytes) {
        return [bytes](qint64 /*number*/) {
            return bytes;
        };
    };
    const QByteArray chunked = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n"
                               "Transfer-Encoding: chunked\r\n\r\n";
    const auto chunk = [](const QByteArray &bytes) {
        return QByteArray::number(bytes.size(), 16) + "\r\n" + bytes + "\r\n";
    };
    constexpr qint64 mebibyte = qint64(1024) * 1024;
    switch (manner_) {
    case Manner::Silent:
    case Manner::Locked:
        break;
    case Manner::Trickling:
        while (put(client, "H"))
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        break;
    case Manner::BreakingOff:
        put(client, header("application/vnd.cups-ppd", 40 * mebibyte) + "*PPD-Adobe");
        break;
    case Manner::Overflowing:
        put(client, header("application/vnd.cups-ppd", 40 * mebibyte));
        repeat(client, block(QByteArray(mebibyte, '*')), 40 * mebibyte);
        break;
    case Manner::Failing:
        put(client, "HTTP/1.1 500 Internal Server Error\r\nContent-Length: 0\r\n\r\n");
        break;
    case Manner::Redirecting:
        put(client, "HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n");
        break;
    case Manner::Nesting: {
        QByteArray nested = attribute(0x34, "deep", {});
        for (int level = 1; level < 8000; ++level)
            nested += attribute(0x4a, {}, "x") + attribute(0x34, {}, {});
        for (int level = 0; level < 8000; ++level)
            nested += attribute(0x37, {}, {});
        put(client, whole(successfulHead + '\x04' + nested + endOfAttributes));
        break;
    }
    case Manner::EndlessValues: {
        const auto many = [&chunk](qint64 number) {
            QByteArray values;
            for (qint64 i = 0; i < 1000; ++i)
                values += attribute(0x41, "a" + QByteArray::number(number * 1000 + i), {});
            return chunk(values);
        };
        put(client, chunked + chunk(successfulHead + '\x04'));
        repeat(client, many, endless);
        break;
    }
    case Manner::EmptyAttributes:
    case Manner::Separators: {
        const QByteArray part =
            (manner_ == Manner::Separators ? QByteArray("\x04") : attribute(0x13, "a", {})).repeated(1000);
        const qint64 size = 16 * mebibyte / part.size() * part.size();
        put(client,
            header("application/ipp", successfulHead.size() + 1 + size + 1) + successfulHead + '\x04');
        repeat(client, block(part), size);
        put(client, QByteArray(1, endOfAttributes));
        break;
    }
    case Manner::EndlessHeaders:
        put(client, "HTTP/1.1 200 OK\r\n");
        repeat(client, block("WWW-Authenticate: " + QByteArray(30000, 'x') + "\r\n"), endless);
        break;
    case Manner::EndlessContinues:
        repeat(client, block(QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(1000)), endless);
        break;
    case Manner::EndlessChunks:
        put(client, chunked + chunk(successfulHead + endOfAttributes));
        repeat(client, block(chunk(QByteArray(mebibyte, 'x'))), endless);
        break;
    case Manner::ManyReasons:
    case Manner::ManyQueues: {
        const bool isQueues = manner_ == Manner::ManyQueues;
        QByteArray answer = successfulHead + '\x04' + attribute(0x42, "printer-name", "photo") +
                            attribute(0x44, "printer-state-reasons", "none");
        for (int i = 0; i < (isQueues ? 10000 : 40000); ++i)
            answer += isQueues ? '\x04' + attribute(0x42, "printer-name", QByteArray::number(i) + "%20")
                               : attribute(0x44, {}, QByteArray::number(i));
        put(client, whole(answer + endOfAttributes));
        break;
    }
    case Manner::JobBelowZero:
        put(client,
            whole(successfulHead + '\x02' + attribute(0x21, "job-id", "\xff\xff\xff\xff") + endOfAttributes));
        break;
    case Manner::OddNames: {
        QByteArray queues = successfulHead;
        for (const char *name : {"good", "go\tod", "a/b", "na\xefve"})
            queues += '\x04' + attribute(0x42, "printer-name", name) +
                      attribute(0x42, "member-names", "go\x01od") + attribute(0x42, {}, "inner");
        put(client, whole(queues + endOfAttributes));
        break;
    }
    }
}

} // namespace testing_support
