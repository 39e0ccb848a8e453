// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QuietDecoding.h"

#include <QtCore/QByteArray>
#include <QtCore/QLoggingCategory>

#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace printdialog {
namespace {

Q_LOGGING_CATEGORY(decodingLog, "printdialog.decoding", QtWarningMsg)

bool isEnabled = false;

} // namespace

void QuietDecoding::enable()
{
    isEnabled = true;
}

QuietDecoding::QuietDecoding()
{
    auto pipe = isEnabled ? pdekit::Pipe::make() : std::nullopt;
    if (!pipe)
        return;
    // Neither end blocks: writing to a full pipe fails.
    for (const pdekit::FileDescriptor *end : {&pipe->reading, &pipe->writing})
        ::fcntl(end->number(), F_SETFL, O_NONBLOCK);
    written_ = std::move(pipe->reading);
    standardError_ = pdekit::FileDescriptor(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    if (standardError_.isOpen())
        ::dup2(pipe->writing.number(), STDERR_FILENO);
}

QuietDecoding::~QuietDecoding()
{
    if (!standardError_.isOpen())
        return;
    ::dup2(standardError_.number(), STDERR_FILENO);
    std::array<char, 4096> text = {};
    const ssize_t size = ::read(written_.number(), text.data(), text.size());
    const QByteArray lines = QByteArray(text.data(), size > 0 ? size : 0).trimmed();
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.isEmpty())
            qCWarning(decodingLog, "%s", line.constData());
    }
}

} // namespace printdialog
