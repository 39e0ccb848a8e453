// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "IppAttributes.h"
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

/// The attributes of a queue, or of the printer behind it, in one or two requests. Empty when the server does
/// not answer with them; a queue can be used without. Blocks, at most for `patience`, which becomes the
/// connection's limit.
/// @param hasPpd its options are then in the PPD, and their defaults in the attributes
IppAttributes attributesOf(CupsConnection &connection, const QueueRecord &record, bool hasPpd,
                           std::chrono::milliseconds patience);

/// How long to wait for attributes beside a PPD that may take `limit`: they are not worth a longer wait.
constexpr std::chrono::milliseconds attributesPatience(std::chrono::milliseconds limit)
{
    return limit / 5;
}

/// What can be chosen for a queue.
struct FetchedOptions
{
    std::optional<CheckedPpd> ppd; ///< Nothing for a raw queue, or a class of them.
    IppAttributes attributes;      ///< Empty when the server has none.
};

/// Fetches queues' PPDs and attributes without blocking. Lives on the thread that made it, which needs an
/// event loop. A worker thread asks the server, and is abandoned when the server does not answer.
class OptionsFetcher : public QObject
{
    Q_OBJECT

public:
    /// Called on the worker thread, once for each PPD.
    using Check = std::function<Result<CheckedPpd, PpdFault>(const QByteArray &ppd, const QString &name)>;
    /// @param limit for one fetch of a PPD; the check and the attributes have their own limits
    explicit OptionsFetcher(QObject *parent = nullptr,
                            std::chrono::milliseconds limit = std::chrono::seconds(10),
                            Check check = checkFetched);
    ~OptionsFetcher() override;

    /// Starts a fetch and cancels an earlier one, for which no signal follows. Returns the number that the
    /// outcome is signalled with, exactly once, after this call has returned.
    /// @param known the PPD that the queue most likely has; it is not checked again
    /// @param announcedUri the device URI of an announced printer, whose queue is made if there is none
    quint64 fetch(const Destination &destination, const std::optional<CheckedPpd> &known = std::nullopt,
                  const QString &announcedUri = {});
    /// Starts a fetch that may be needed soon: the next fetch() of the same queue continues it. No signal is
    /// emitted before that, and none about a failure.
    void fetchAhead(const Destination &destination);
    /// Cancels the fetch under way; no signal follows.
    void cancel();

Q_SIGNALS:
    void fetched(quint64 number, const printdialog::FetchedOptions &options);
    /// `text` is a sentence for people, see queueFailure(). All of QueueFault but NoPpd and NotAccepting.
    void failed(quint64 number, printdialog::QueueFault reason, const QString &text);

private:
    static Result<CheckedPpd, PpdFault> checkFetched(const QByteArray &ppd, const QString &name);

    void start(const Destination &destination, const std::optional<CheckedPpd> &known,
               const QString &announcedUri);
    void take(const Result<FetchedOptions, QueueFault> &outcome);

    Check check_;
    QTimer limit_; // for calls that the worker's own limit does not cover
    Destination destination_;
    QString announcedUri_;
    quint64 number_ = 0;
    bool isAhead_ = false;                  // the outcome was not requested yet
    std::optional<FetchedOptions> early_;   // arrived before it was requested
    std::shared_ptr<BoundedWorker> worker_; // null when nothing is under way
};

} // namespace printdialog
