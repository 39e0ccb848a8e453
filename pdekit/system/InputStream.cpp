// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "InputStream.h"

#include <QtCore/QFile>
#include <QtCore/QSocketNotifier>

#include <cerrno>
#include <poll.h>

namespace pdekit {

InputStream::InputStream(const QString &path)
    : path_(path)
{
}

InputStream::~InputStream()
{
    close();
}

bool InputStream::open()
{
    descriptor_ =
        FileDescriptor(::open(QFile::encodeName(path_).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor_.isOpen()) {
        reportFailureSoon();
        return false;
    }
    notifier_ = new QSocketNotifier(descriptor_.number(), QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &InputStream::tellWhatIsThere);
    return true;
}

void InputStream::close()
{
    if (notifier_) {
        // It may be the sender of the current signal, so it is deleted later.
        notifier_->setEnabled(false);
        notifier_->setParent(nullptr);
        notifier_->deleteLater();
        notifier_ = nullptr;
    }
    descriptor_.close();
}

std::ptrdiff_t InputStream::read(char *buffer, std::size_t size)
{
    for (;;) {
        const std::ptrdiff_t count = ::read(descriptor_.number(), buffer, size);
        if (count >= 0 || errno != EINTR)
            return count;
    }
}

void InputStream::tellWhatIsThere()
{
    pollfd state = {descriptor_.number(), POLLIN, 0};
    if (poll(&state, 1, 0) <= 0)
        return;
    const bool hasBytes = (state.revents & POLLIN) != 0;
    const bool hasEnded = !hasBytes && (state.revents & POLLHUP) != 0;
    // Otherwise the end would be reported forever.
    if (!hasBytes)
        notifier_->setEnabled(false);
    if (!hasBytes && !hasEnded) {
        reportFailureSoon();
        return;
    }
    // A receiver may delete the stream: do not use it afterwards.
    Q_EMIT handleEvent(hasBytes ? StreamEventHasBytesAvailable : StreamEventEndEncountered);
}

// Each event comes from the event loop: a receiver of the error may wait there for the end.
void InputStream::reportFailureSoon()
{
    for (const StreamEvent event : {StreamEventErrorOccurred, StreamEventEndEncountered})
        QMetaObject::invokeMethod(
            this, [this, event] { Q_EMIT handleEvent(event); }, Qt::QueuedConnection);
}

} // namespace pdekit
