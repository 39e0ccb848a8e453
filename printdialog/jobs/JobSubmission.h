// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QueueFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <optional>

namespace printdialog {

/// What is printed: a file, or bytes at hand.
struct SubmittedDocument
{
    QString path;        ///< Read while it is sent; empty: data is sent instead.
    QByteArray data;     ///< Sent byte for byte.
    QByteArray mimeType; ///< For example "image/jpeg"; the server chooses its filters by it.
    QString name;        ///< The document's name as the server shows it.
};

/// A job as it is to be sent.
struct JobRequest
{
    QString queue; ///< The queue's id.
    QString title;
    SubmittedDocument document;
    QMap<QString, QString> options; ///< Keyword to choice, both as in the PPD; not "copies".
    int copies = 1;
    /// The PPD that the options were chosen from, null for a queue that has none: the job is refused when
    /// the queue has another one by now. Without it nothing is compared.
    std::optional<QByteArray> ppd = std::nullopt;
};

/// How whoever waits for a job hears of it, and gives it up.
struct JobControl
{
    /// Bytes sent so far, and in all. Called on the thread that submits; may be empty.
    std::function<void(qint64 sent, qint64 total)> sent;
    int *cancel = nullptr; ///< Non-zero: give up. Outlives the call; may be null.
};

/// Why the job cannot be sent, whatever the server; nothing when it can. See submitJob().
std::optional<Failure<QueueFault>> whyUnfit(const JobRequest &job);

/// Sends one document as a job of its own and returns the job's id. Blocks until the server has taken all of
/// it: for a worker, or the command line. A job that cannot be finished is cancelled.
///
/// Every option goes out exactly as given, and nothing else but the number of copies. An option whose keyword
/// or value could be read as something else by the server (control characters above all) is refused before
/// anything is sent; titles and names are cleaned. Failures: all but NoPpd.
/// @param patience how long the server may take for each step; sending 64 KiB is one
Result<int, QueueFault> submitJob(const JobRequest &job, const JobControl &control = {},
                                  std::chrono::milliseconds patience = std::chrono::seconds(30));

} // namespace printdialog
