// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobFollowing.h"
#include "JobSubmission.h"
#include "PlacedPhoto.h"
#include "PrintJob.h"
#include "PrintedNames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// Prints photos one after the other, on a queue or the built-in printer; the names of their files are kept
/// apart. What a queue has is followed until it is over, or taken back. Blocking, for a worker thread or the
/// command line; one thread at a time.
class PhotoPrinter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoPrinter)

public:
    /// Why a photo was not printed, in one of the user's sentences. The reasons lie in too many places for
    /// one enumeration to be of use.
    struct Fault
    {
        std::optional<QueueFault> queue; ///< The queue's own reason.
        bool isPhotos =
            false; ///< The photo is damaged, or needs too much memory; another one may be printed.
    };

    /// @param sent, cancel see JobSubmission
    explicit PhotoPrinter(const PrintJob &job, const JobSubmission::Progress &sent = {},
                          int *cancel = nullptr);

    /// Sends the photo to the queue, or leaves it as files: one sentence for people about it.
    Result<QString, Fault> print(const PlacedPhoto &placed);

    /// What print() sends to a queue.
    static Result<JobDocument, Fault> documentOf(const PlacedPhoto &placed, const PrintJob &job);

    /// The ids of the jobs that the queue has; none of the built-in printer.
    QList<int> sentJobs() const;

    /// What has become of the jobs that the queue has.
    struct Outcome
    {
        QStringList printed; ///< A sentence for each job that the server says is done.
        QList<int> ids;      ///< The ids of those jobs.
        QStringList waiting; ///< A sentence for each that stands still, and why; the server keeps it.
        std::optional<QString> failure; ///< Why one was not printed, the first such; a sentence.
    };

    /// Follows one job after the other. A job that waits has its time from the first one's on: all of them
    /// wait for the same printer.
    /// @param news the photo's number, counted among those that were sent, and its job's state in words
    /// @param cancel non-zero: stop following; may be null
    Outcome follow(const FollowLimits &limits, const std::function<void(int photo, const QString &)> &news,
                   int *cancel);

    /// Cancels what is not over yet. A sentence for each job that could not be cancelled.
    /// @param over becomes how many were over already
    QStringList takeBack(int &over);

private:
    struct SentJob
    {
        QString photo; ///< Its file's name.
        int id;
    };

    Result<QString, Fault> send(const PlacedPhoto &placed);
    void note(const SentJob &job, const JobStatus &status, Outcome &outcome) const;

    PrintJob job_;
    JobSubmission submission_;
    PrintedNames names_;
    QList<SentJob> sent_;
};

} // namespace printdialog
