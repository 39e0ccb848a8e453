// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobFollowing.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>

#include <optional>

namespace printdialog {

/// The jobs that one run has sent to a queue, followed until they are over. Blocking; one thread at a time.
class SentJobs
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::SentJobs)

public:
    struct Outcome
    {
        QStringList printed; ///< A sentence for each job that the server says is done.
        QList<int> ids;      ///< The ids of those jobs.
        QStringList waiting; ///< A sentence for each that stands still, and why; the server keeps it.
        std::optional<QString> failure; ///< Why one was not printed, the first such; a sentence.
    };

    /// @param queue the queue's id
    explicit SentJobs(const QString &queue)
        : queue_(queue)
    {
    }

    void add(const QString &photo, int id) { jobs_.append({photo, id}); }
    bool isEmpty() const { return jobs_.isEmpty(); }

    /// Follows one job after the other. A job that waits has its time from the first one's on: all of them
    /// wait for the same printer.
    /// @param news the photo's number and its job's state in words; may be empty
    /// @param cancel non-zero: stop following; may be null
    Outcome follow(const FollowLimits &limits, const std::function<void(int photo, const QString &)> &news,
                   int *cancel) const;

    /// Cancels what is not over yet. A sentence for each job that could not be cancelled.
    /// @param over how many were over already; may be null
    QStringList cancel(int *over = nullptr) const;

private:
    struct Job
    {
        QString photo; ///< Its file's name.
        int id;
    };

    QString queue_;
    QList<Job> jobs_;
};

} // namespace printdialog
