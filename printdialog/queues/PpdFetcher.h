// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "PpdCheck.h"
#include "QueueFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace printdialog {

class BoundedWorker;
class CupsConnection;
struct QueueRecord;

/// The largest PPD that is accepted from a server, in bytes. Those of real printers are below 3 MiB; several
/// copies of it are in memory at times.
constexpr qsizetype fetchedPpdLimit = qsizetype(8) * 1024 * 1024;

/// The PPD of a queue as the server sends it, untrusted and unparsed; for a class, that of its first member.
/// Blocks, at most for the connection's limit. It is never stored in a file that another process could see or
/// that could be left behind. Failures: all of QueueFault but NotAccepting.
Result<QByteArray, QueueFault> ppdOf(CupsConnection &connection, const QueueRecord &record);

/// Fetches PPDs without blocking. Lives on the thread that made it, which needs an event loop. A worker
/// thread asks the server, and is abandoned when the server does not answer.
class PpdFetcher : public QObject
{
    Q_OBJECT

public:
    /// Called on the worker thread, once for each PPD.
    using Check = std::function<Result<CheckedPpd, PpdFault>(const QByteArray &ppd, const QString &name)>;
    /// @param limit for one fetch; the check has its own limit
    explicit PpdFetcher(QObject *parent = nullptr, std::chrono::milliseconds limit = std::chrono::seconds(10),
                        Check check = checkFetched);
    ~PpdFetcher() override;

    /// Starts a fetch and cancels an earlier one, for which no signal follows. Returns the number that the
    /// outcome is signalled with, exactly once, after this call has returned.
    /// @param known the PPD that the queue most likely has; it is not checked again
    quint64 fetch(const Destination &destination, const std::optional<CheckedPpd> &known = std::nullopt);
    /// Starts a fetch that may be needed soon: the next fetch() of the same queue continues it. No signal is
    /// emitted before that, and none about a failure.
    void fetchAhead(const Destination &destination);
    /// Cancels the fetch under way; no signal follows.
    void cancel();

Q_SIGNALS:
    void fetched(quint64 number, const printdialog::CheckedPpd &ppd);
    /// `text` is a sentence for people, see queueFailure().
    void failed(quint64 number, printdialog::QueueFault reason, const QString &text);

private:
    static Result<CheckedPpd, PpdFault> checkFetched(const QByteArray &ppd, const QString &name);

    void start(const Destination &destination, const std::optional<CheckedPpd> &known);
    void take(const Result<CheckedPpd, QueueFault> &outcome);

    Check check_;
    QTimer limit_; // for calls that the worker's own limit does not cover
    Destination destination_;
    quint64 number_ = 0;
    bool isAhead_ = false;                  // the outcome was not requested yet
    std::optional<CheckedPpd> early_;       // arrived before it was requested
    std::shared_ptr<BoundedWorker> worker_; // null when nothing is under way
};

} // namespace printdialog
