// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SentJobs.h"

#include <algorithm>
#include <atomic>

namespace printdialog {

SentJobs::Outcome SentJobs::follow(const FollowLimits &limits,
                                   const std::function<void(int, const QString &)> &news, int *cancel) const
{
    using Clock = std::chrono::steady_clock;
    Outcome outcome;
    FollowLimits left = limits;
    const auto end = Clock::now() + limits.total;
    for (int i = 0; i < static_cast<int>(jobs_.size()); ++i) {
        const Job &job = jobs_.at(i);
        left.total = std::max(FollowLimits::Time(),
                              std::chrono::duration_cast<FollowLimits::Time>(end - Clock::now()));
        const auto status = followJob(
            queue_, job.id, left,
            [&](const JobStatus &now) {
                if (news)
                    news(i, now.text());
            },
            cancel);
        if (cancel && std::atomic_ref(*cancel).load() != 0)
            return outcome;
        if (!status) {
            outcome.failure = tr("What has become of %1 (job %2) is not known: %3")
                                  .arg(job.photo, QString::number(job.id), status.failure().text);
            return outcome;
        }
        const QString detail = status->detail();
        if (!status->isOver()) {
            outcome.waiting.append(tr("%1 (job %2) is not printed yet: %3. The print server keeps it; "
                                      "\"cancel %2\" takes it back.")
                                       .arg(job.photo, QString::number(job.id), status->text()));
            left.waiting = {};
        } else if (status->state == JobStatus::State::Aborted) {
            if (!outcome.failure)
                outcome.failure = tr("The printer \"%1\" could not print %2 (job %3): %4. Look at the "
                                     "printer and print again.")
                                      .arg(queue_, job.photo, QString::number(job.id),
                                           detail.isEmpty() ? tr("it gave no reason") : detail);
        } else if (status->state == JobStatus::State::Canceled) {
            if (!outcome.failure)
                outcome.failure = tr("The job %3 for %2 on the printer \"%1\" was cancelled (%4).")
                                      .arg(queue_, job.photo, QString::number(job.id),
                                           detail.isEmpty() ? tr("nobody said why") : detail);
        } else {
            outcome.ids.append(job.id);
            outcome.printed.append(
                tr("Printed %1 on %2 (job %3)").arg(job.photo, queue_, QString::number(job.id)));
        }
    }
    return outcome;
}

QStringList SentJobs::cancel(int *over) const
{
    QStringList failures;
    for (const Job &job : jobs_) {
        const auto cancelled = cancelJob(queue_, job.id);
        if (!cancelled)
            failures.append(tr("The job %1 for %2 could not be cancelled: %3")
                                .arg(QString::number(job.id), job.photo, cancelled.failure().text));
        else if (over && !*cancelled)
            ++*over;
    }
    return failures;
}

} // namespace printdialog
