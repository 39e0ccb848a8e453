// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SignalLog.h"

#include "SystemLog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QSocketNotifier>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace pdekit {

namespace {

// The pipe's ends are never closed: a handler may run until the process ends.
std::atomic<int> writeEnd = -1;
int readEnd = -1;

constexpr std::size_t longestLine = 255;

/// In the pipe, each line ends with a NUL, since it may contain line feeds.
void logWaitingLines()
{
    static QByteArray pending;
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while ((count = read(readEnd, buffer.data(), buffer.size())) > 0)
        pending.append(buffer.data(), static_cast<qsizetype>(count));
    for (qsizetype end = 0; (end = pending.indexOf('\0')) >= 0; pending.remove(0, end + 1))
        systemLog(QString::fromUtf8(pending.left(end)));
}

} // namespace

bool prepareSignalLog()
{
    static QPointer<QSocketNotifier> notifier;
    if (writeEnd < 0) {
        std::array<int, 2> ends = {-1, -1};
        if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return false;
        readEnd = ends[0];
        writeEnd = ends[1];
    }
    if (!notifier && QCoreApplication::instance()) {
        notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, QCoreApplication::instance());
        QObject::connect(notifier, &QSocketNotifier::activated, notifier, &logWaitingLines);
    }
    return true;
}

void systemLogFromSignal(const char *text, std::size_t length) noexcept
{
    const int savedErrno = errno;
    std::array<char, longestLine + 1> record;
    const std::size_t kept = std::min(length, longestLine);
    std::memcpy(record.data(), text, kept);
    record[kept] = '\0';
    // A write of less than PIPE_BUF bytes is atomic, so lines of several threads never mix.
    [[maybe_unused]] const ssize_t written = write(writeEnd, record.data(), kept + 1);
    errno = savedErrno;
}

} // namespace pdekit
