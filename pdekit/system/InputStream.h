// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "pdekit_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <cstddef>

class QSocketNotifier;

namespace pdekit {

/// The events of a stream.
enum StreamEvent : quintptr {
    StreamEventHasBytesAvailable = 2,
    StreamEventErrorOccurred = 8,
    StreamEventEndEncountered = 16,
};

/// Reads from a path with a separate descriptor, and reports on the thread's event loop when there is
/// something to read.
class PDEKIT_EXPORT InputStream : public QObject
{
    Q_OBJECT

public:
    explicit InputStream(const QString &path);
    ~InputStream() override;

    /// Opens the path and schedules the stream on this thread's event loop. False: it cannot be opened. A
    /// stream that fails, here or later, reports an error and then its end, so that nothing keeps waiting for
    /// it.
    bool open();
    /// Closes the stream; no more events follow.
    void close();
    /// Reads at most `size` available bytes; 0 at the end, -1 when nothing is available or reading fails.
    /// Never blocks.
    std::ptrdiff_t read(char *buffer, std::size_t size);

Q_SIGNALS:
    void handleEvent(quintptr event);

private:
    void tellWhatIsThere();
    void reportFailureSoon();

    QString path_;
    FileDescriptor descriptor_;
    QSocketNotifier *notifier_ = nullptr;
};

} // namespace pdekit
