// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobFollowing.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>

#include <optional>

namespace printdialog {

struct Destination;

/// One of the user's jobs, as the server reports it. All texts are plain text.
struct OwnJob
{
    int id = 0;
    QString title;
    QString printer; ///< the queue's name, or the printer's address
    JobStatus status;
    QDateTime since; ///< when it was sent, began to print, or ended; invalid when the server does not say

    friend bool operator==(const OwnJob &, const OwnJob &) = default;
};

/// What a user can do with a job.
enum class JobAct { Cancel, Hold, Release, PrintAgain };

/// Whether the act makes sense in the state that the job was last seen in.
bool isPossible(JobAct act, const OwnJob &job);

/// The user's jobs: those that are not over in the server's order, then the last ones that are, the latest
/// first. Blocks, at most for the connection's limit for each request. Failures: NoServer, Refused, TimedOut,
/// Failed.
/// @param destination an address: that printer's jobs; otherwise those of all queues
Result<QList<OwnJob>, QueueFault> ownJobs(CupsConnection &connection, const Destination &destination);

/// Nothing when it is done, or when a job to be canceled is already over. The failure's text is a sentence
/// for people. Blocks, at most for the connection's limit.
std::optional<Failure<QueueFault>> perform(JobAct act, const OwnJob &job, CupsConnection &connection);

} // namespace printdialog
