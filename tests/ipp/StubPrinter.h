// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrinterMessage.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <atomic>
#include <mutex>
#include <thread>

namespace testing_support {

/// A printer without a print server, on a port of this machine and a thread: describes itself by the message,
/// takes jobs, and finishes each one when it is asked about it for the second time.
class StubPrinter
{
public:
    struct Job
    {
        QMap<QString, QString> attributes; ///< with their types: "enum high"
        QByteArray resource;
        QByteArray format;
        QByteArray document;
    };

    explicit StubPrinter(const PrinterMessage &message);
    ~StubPrinter();
    Q_DISABLE_COPY_MOVE(StubPrinter)

    /// "ipp://localhost:port/ipp/print"
    QString address() const;
    /// For CUPS_SERVER, as a print server that has no PPDs.
    QByteArray server() const { return "localhost:" + QByteArray::number(port_); }
    QList<Job> jobs();

private:
    void serve();
    void answer(http_t *http);
    std::shared_ptr<ipp_t> answerTo(ipp_t *request, const QByteArray &resource, const QByteArray &document);

    PrinterMessage message_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<int> looks_ = 0;
    std::mutex mutex_; // guards the jobs
    QList<Job> jobs_;
    std::thread thread_;
};

} // namespace testing_support
