// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobDocument.h"
#include "PrintJob.h"
#include "QueueFault.h"

#include <QtCore/QByteArrayList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace printdialog {

class CupsConnection;
struct QueueRecord;

/// Why the job and the document cannot be sent to any server; nothing when they can.
///
/// An option is refused when the server could misread its keyword or value, for example because of control
/// characters.
std::optional<Failure<QueueFault>> whyUnfit(const PrintJob &job, const JobDocument &document);

/// Sends documents to queues over one connection, each as a separate job. Use it only on the thread that made
/// it.
class JobSubmission
{
public:
    /// Bytes sent so far, and in total.
    using Progress = std::function<void(qint64 sent, qint64 total)>;

    /// @param sent called on the thread that sends; may be empty
    /// @param cancel non-zero: give up; outlives this object; may be null
    /// @param patience how long the server may take for each step, such as receiving 64 KiB
    explicit JobSubmission(const Progress &sent = {}, int *cancel = nullptr,
                           std::chrono::milliseconds patience = std::chrono::seconds(30));
    ~JobSubmission();
    Q_DISABLE_COPY_MOVE(JobSubmission)

    /// Returns the new job's id. Blocks until the server has received the complete job: for a worker, or the
    /// command line. A job that cannot be finished is canceled.
    ///
    /// Every option is sent exactly as given, and otherwise only the number of copies. Unfit options are
    /// refused before anything is sent (see whyUnfit), and names are cleaned. Failures: all but NoPpd.
    Result<int, QueueFault> send(const PrintJob &job, const JobDocument &document);

    /// Called right before the job is made, when nothing stands in its way any more; false: make no job,
    /// which is the failure Canceled. May be empty.
    using Beginning = std::function<bool()>;
    void onBeginning(const Beginning &beginning) { beginning_ = beginning; }

    /// After a failed send(): whether the server may have the job nevertheless, since it had the complete
    /// document and its answer is not known.
    bool mayHaveMadeJob() const { return mayHaveMadeJob_; }

    /// For further requests about the jobs, once one was sent.
    CupsConnection &connection() { return *connection_; }

private:
    /// A queue whose PPD was found to be the job's, and that has not changed since.
    struct Compared
    {
        QByteArray uri;
        QByteArray ppd;
        int unchangedSince;

        bool operator==(const Compared &) const = default;
    };

    Result<QueueRecord, QueueFault> makeAgain(const PrintJob &job);
    Result<QByteArrayList, QueueFault> authInfoFor(const QueueRecord &record);
    std::optional<Failure<QueueFault>> comparePpd(const QByteArray &ppd, const QueueRecord &record);

    Progress sent_;
    Beginning beginning_;
    bool mayHaveMadeJob_ = false;
    int *cancel_;
    std::chrono::milliseconds patience_;
    std::unique_ptr<CupsConnection> connection_; ///< null before the first job
    std::optional<Compared> compared_;
};

} // namespace printdialog
