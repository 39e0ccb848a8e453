// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobDocument.h"
#include "PrintJob.h"
#include "QueueFault.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace printdialog {

class CupsConnection;
struct QueueRecord;

/// Why the document cannot be sent with the job, whatever the server; nothing when it can.
///
/// An option whose keyword or value could be read as something else by the server (control characters above
/// all) is none that can be sent.
std::optional<Failure<QueueFault>> whyUnfit(const PrintJob &job, const JobDocument &document);

/// Sends documents to queues, each as a job of its own, over one connection. To be used by the thread that
/// made it.
class JobSubmission
{
public:
    /// Bytes sent so far, and in all.
    using Progress = std::function<void(qint64 sent, qint64 total)>;

    /// @param sent called on the thread that sends; may be empty
    /// @param cancel non-zero: give up; outlives this object; may be null
    /// @param patience how long the server may take for each step; sending 64 KiB is one
    explicit JobSubmission(const Progress &sent = {}, int *cancel = nullptr,
                           std::chrono::milliseconds patience = std::chrono::seconds(30));
    ~JobSubmission();
    Q_DISABLE_COPY_MOVE(JobSubmission)

    /// Returns the new job's id. Blocks until the server has taken all of it: for a worker, or the command
    /// line. A job that cannot be finished is cancelled.
    ///
    /// Every option goes out exactly as given, and nothing else but the number of copies; what is unfit is
    /// refused before anything is sent, and names are cleaned. Failures: all but NoPpd.
    Result<int, QueueFault> send(const PrintJob &job, const JobDocument &document);

    /// For what else concerns the jobs, once one was sent.
    CupsConnection &connection() { return *connection_; }

private:
    /// The queue's PPD was the job's, and the queue has not changed since.
    struct Compared
    {
        QByteArray uri;
        QByteArray ppd;
        int unchangedSince;

        bool operator==(const Compared &) const = default;
    };

    std::optional<Failure<QueueFault>> comparePpd(const QByteArray &ppd, const QueueRecord &record);

    Progress sent_;
    int *cancel_;
    std::chrono::milliseconds patience_;
    std::unique_ptr<CupsConnection> connection_; ///< null before the first job
    std::optional<Compared> compared_;
};

} // namespace printdialog
