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

/// The largest PPD that is taken from a server, in bytes. Those of real printers stay below 3 MiB; a few
/// copies of one are made on its way to the panels.
constexpr qsizetype fetchedPpdLimit = qsizetype(8) * 1024 * 1024;

/// The PPD of a queue, of a class that of its first member, as the server hands it out: untrusted, unparsed.
/// Within the connection's limit. It never lies in a file that another process could see or that could be
/// left behind. Failures: all of QueueFault but NotAccepting.
Result<QByteArray, QueueFault> ppdOf(CupsConnection &connection, const QueueRecord &record);

/// Fetches PPDs without blocking. Everything about it happens on the thread that made it, where it needs an
/// event loop; the server is asked by a worker thread that is left behind when it does not answer.
class PpdFetcher : public QObject
{
    Q_OBJECT

public:
    /// Called on the worker thread, once for each PPD.
    using Check = std::function<Result<CheckedPpd, PpdFault>(const QByteArray &ppd, const QString &name)>;
    /// @param limit for one fetch; the check has its own
    explicit PpdFetcher(QObject *parent = nullptr, std::chrono::milliseconds limit = std::chrono::seconds(10),
                        Check check = checkFetched);
    ~PpdFetcher() override;

    /// Starts, and gives up any earlier fetch: of that one nothing is heard any more. Returns the number
    /// under which the outcome is announced, exactly once, after this has returned.
    /// @param known the PPD that the queue has most likely; it is not checked again
    quint64 fetch(const Destination &destination, const std::optional<CheckedPpd> &known = std::nullopt);
    /// Starts a fetch that is wanted soon, if at all: the next fetch() of the same queue takes it up where it
    /// stands then. Nothing is announced before, and a failure not at all.
    void fetchAhead(const Destination &destination);
    /// Gives up the fetch under way; nothing is announced.
    void cancel();

Q_SIGNALS:
    void fetched(quint64 number, const printdialog::CheckedPpd &ppd);
    /// With one sentence for people, see queueFailure().
    void failed(quint64 number, printdialog::QueueFault reason, const QString &text);

private:
    static Result<CheckedPpd, PpdFault> checkFetched(const QByteArray &ppd, const QString &name);

    void start(const Destination &destination, const std::optional<CheckedPpd> &known);
    void take(const Result<CheckedPpd, QueueFault> &outcome);

    Check check_;
    QTimer limit_; // for what the worker's own limit does not cover
    Destination destination_;
    quint64 number_ = 0;
    bool isAhead_ = false;                  // nobody has asked for the outcome yet
    std::optional<CheckedPpd> early_;       // what has arrived before anybody asked
    std::shared_ptr<BoundedWorker> worker_; // null when nothing is under way
};

} // namespace printdialog
