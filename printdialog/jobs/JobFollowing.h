// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QueueFault.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <functional>

namespace printdialog {

class CupsConnection;
struct QueueRecord;

/// The server's report on a job. All texts are plain text.
struct JobStatus
{
    enum class State {
        Pending,
        Held,
        Processing,
        Stopped, ///< Begun, but the printer is stopped.
        Canceled,
        Aborted,
        Completed,
        Gone ///< The server keeps no record of it any more: it is over.
    };

    State state = State::Pending;
    QStringList reasons; ///< Keywords, the job's and then its printer's.
    QString message;     ///< The latest message of the printer or its filters about the job; may be empty.
    /// The server does not answer, and the rest is its last report. It may be restarting, and is asked until
    /// it is back.
    bool isServerAway = false;

    bool isOver() const { return state >= State::Canceled; }
    /// Whether the job does not proceed until somebody acts.
    bool isWaiting() const;
    /// The reasons in words, or else the server's message; empty when there is neither.
    QString detail() const;
    /// The state for people, with its detail.
    QString text() const;

    friend bool operator==(const JobStatus &, const JobStatus &) = default;
};

/// The state for a value of "job-state".
JobStatus::State jobStateOf(int jobState);

/// Adds the reasons and message of a stopped printer: for a job that has not begun, the server reports
/// neither that the printer is stopped nor why.
void addPrintersWords(const QueueRecord &record, JobStatus &status);

/// How long a job is followed.
struct FollowLimits
{
    using Time = std::chrono::milliseconds;

    Time waiting = std::chrono::seconds(10); ///< While the job is held or its printer is stopped.
    Time quiet = std::chrono::minutes(10);   ///< Without a change of state, reasons or message.
    Time silent = std::chrono::seconds(10);  ///< For one answer of the server.
    Time away = std::chrono::seconds(60);    ///< Until a server that has gone is back.
    Time total = std::chrono::hours(24);
};

/// Follows a job until it is over, a limit is reached, or `cancel` is raised (which does not cancel the job).
/// Returns the last status. Blocks. Keeps asking a server that restarts. Failures: the server has stopped
/// answering, or no longer knows the job after a restart.
/// @param queue the queue's id
/// @param news called on this thread with each change; may be empty
/// @param cancel non-zero: stop following; outlives the call; may be null
Result<JobStatus, QueueFault> followJob(CupsConnection &connection, const QString &queue, int id,
                                        const FollowLimits &limits,
                                        const std::function<void(const JobStatus &)> &news = {},
                                        int *cancel = nullptr);

/// Cancels a job. Blocks, at most for the connection's limit. False when the job is already over. Failures:
/// NoServer, Refused, TimedOut, Failed.
Result<bool, QueueFault> cancelJob(CupsConnection &connection, const QString &queue, int id);

} // namespace printdialog
