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

/// Prints photos one after the other, on a queue or the built-in printer, which gives each photo's files
/// different names. The jobs of a queue can be followed to their end, or canceled. Blocking, for a worker
/// thread or the command line; one thread at a time.
class PhotoPrinter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoPrinter)

public:
    /// Why a photo was not printed; the failure's text is a sentence for people. The reasons come from too
    /// many parts for one useful enumeration.
    struct Fault
    {
        std::optional<QueueFault> queue; ///< The queue's reason, if it is one.
        /// The photo is damaged or needs too much memory; other photos may still print.
        bool isPhotoFault = false;
    };

    /// @param sent, cancel see JobSubmission
    explicit PhotoPrinter(const PrintJob &job, const JobSubmission::Progress &sent = {},
                          int *cancel = nullptr);

    /// Sends the photo to the queue, or writes its files. Returns a sentence for people.
    Result<QString, Fault> print(const PlacedPhoto &placed);

    /// The document that print() sends to a queue.
    static Result<JobDocument, Fault> documentOf(const PlacedPhoto &placed, const PrintJob &job);

    /// The ids of the jobs sent to the queue; empty for the built-in printer.
    QList<int> sentJobs() const;

    /// The outcome of the jobs sent to the queue.
    struct Outcome
    {
        QStringList printed; ///< A sentence for each job that the server reports as completed.
        QList<int> ids;      ///< The ids of those jobs.
        QStringList waiting; ///< A sentence with the reason for each job that waits; the server keeps it.
        std::optional<QString> failure; ///< Why a job was not printed; a sentence about the first one.
    };

    /// Follows one job after the other. The limit for waiting counts from the first job's start, since all of
    /// them wait for the same printer.
    /// @param news called with the photo's index among those that were sent, and its job's state in words
    /// @param cancel non-zero: stop following; may be null
    Outcome follow(const FollowLimits &limits, const std::function<void(int photo, const QString &)> &news,
                   int *cancel);

    /// Cancels the jobs that are not over. Returns a sentence for each one that could not be canceled.
    /// @param over set to the number of jobs that were already over
    QStringList cancelJobs(int &over);

private:
    struct SentJob
    {
        QString photo; ///< The name of its file.
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
