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

/// What the server says about a job. Every text is plain text.
struct JobStatus
{
    enum class State {
        Pending,
        Held,
        Processing,
        Stopped, ///< Begun; the printer is stopped.
        Canceled,
        Aborted,
        Completed,
        Gone ///< The server keeps no record of it any more: it is over.
    };

    State state = State::Pending;
    QStringList reasons; ///< Keywords, the job's and then its printer's.
    QString message;     ///< The last words of the printer or its filters about the job; may be empty.
    /// The server is not there, and the rest is what it said before: it may be starting again, and is asked
    /// until it is back.
    bool isServerAway = false;

    bool isOver() const { return state >= State::Canceled; }
    /// Whether it stands still until somebody does something about it.
    bool isWaiting() const;
    /// The reasons in words, or else the server's own words; empty when there is nothing to say.
    QString detail() const;
    /// The state for people, with its detail.
    QString text() const;

    friend bool operator==(const JobStatus &, const JobStatus &) = default;
};

/// How long a job is followed.
struct FollowLimits
{
    using Time = std::chrono::milliseconds;

    Time waiting = std::chrono::seconds(10); ///< A job that is held, or whose printer is stopped.
    Time quiet = std::chrono::minutes(10);   ///< Without any change of state, reasons or message.
    Time silent = std::chrono::seconds(10);  ///< A server that does not answer.
    Time away = std::chrono::seconds(60);    ///< A server that has gone, until it is back.
    Time total = std::chrono::hours(24);
};

/// Follows a job until it is over, a limit is reached, or it is given up (which leaves the job alone), and
/// returns the last that was heard. Blocks. A server that was started again is asked on. Failures: those of a
/// server that has stopped answering, or that does not know the job after it was away.
/// @param queue the queue's id
/// @param news called on this thread with each change; may be empty
/// @param cancel non-zero: stop following; outlives the call; may be null
Result<JobStatus, QueueFault> followJob(CupsConnection &connection, const QString &queue, int id,
                                        const FollowLimits &limits,
                                        const std::function<void(const JobStatus &)> &news = {},
                                        int *cancel = nullptr);

/// Cancels a job. Blocks, at most for the connection's limit. False for one that is over already. Failures:
/// NoServer, Refused, TimedOut, Failed.
Result<bool, QueueFault> cancelJob(CupsConnection &connection, const QString &queue, int id);

} // namespace printdialog
