// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetPrinter.h"

#include "BuiltInPrinter.h"
#include "CupsConnection.h"
#include "PhotoCheck.h"

#include <algorithm>
#include <atomic>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

Failure<SheetPrinter::Fault> failureOf(const Failure<QueueFault> &failure)
{
    return {{failure.reason, false}, failure.text, failure.detail};
}

/// For OutputFault or PdfFault.
template <class Reason>
Failure<SheetPrinter::Fault> failureOf(const Failure<Reason> &failure)
{
    return {{std::nullopt, failure.reason == Reason::PhotoUnusable}, failure.text, failure.detail};
}

} // namespace

SheetPrinter::SheetPrinter(const PrintJob &job, const JobSubmission::Progress &sent, int *cancel)
    : job_(job)
    , submission_(sent, cancel)
    , names_(job.folder)
{
}

Result<QString, SheetPrinter::Fault> SheetPrinter::print(const PrintSheet &sheet)
{
    if (!job_.destination.isBuiltIn())
        return send(sheet);
    const auto files = BuiltInPrinter::print(sheet, job_, names_);
    if (!files)
        return failureOf(files.failure());
    return tr("Printed %1: %2").arg(sheet.name, files->pdf);
}

Result<QString, SheetPrinter::Fault> SheetPrinter::send(const PrintSheet &sheet)
{
    const auto document = documentOf(sheet, job_);
    if (!document)
        return document.failure();
    PrintJob job = job_;
    job.copies *= sheet.copies;
    if (job.copies > mostJobCopies)
        return Failure<Fault>{{},
                              tr("%1 copies of %2 are more than the %3 that a job can have. Print it in several parts.")
                                  .arg(QString::number(job.copies), document->name,
                                       QString::number(mostJobCopies)),
                              {}};
    const auto id = submission_.send(job, *document);
    if (!id)
        return failureOf(id.failure());
    sent_.append({document->name, *id});
    return tr("Sent %1 to %2 as job %3").arg(document->name, job_.destination.id(), QString::number(*id));
}

Result<JobDocument, SheetPrinter::Fault> SheetPrinter::documentOf(const PrintSheet &sheet,
                                                                  const PrintJob &job)
{
    PhotoCheck check(sheet.photosToCheck());
    auto document = jobDocument(sheet, job);
    if (const auto damage = check.wait())
        return Failure<Fault>{{std::nullopt, true}, damage->text, damage->detail};
    if (!document)
        return failureOf(document.failure());
    if (const auto unfit = whyUnfit(job, *document))
        return failureOf(*unfit);
    return *std::move(document);
}

QList<int> SheetPrinter::sentJobs() const
{
    QList<int> ids;
    for (const SentJob &job : sent_)
        ids.append(job.id);
    return ids;
}

SheetPrinter::Outcome SheetPrinter::follow(const FollowLimits &limits,
                                           const std::function<void(int, const QString &)> &news, int *cancel)
{
    using Clock = std::chrono::steady_clock;
    Outcome outcome;
    FollowLimits left = limits;
    const auto end = Clock::now() + limits.total;
    for (int i = 0; i < static_cast<int>(sent_.size()); ++i) {
        const SentJob &job = sent_.at(i);
        left.total = std::max(FollowLimits::Time(),
                              std::chrono::duration_cast<FollowLimits::Time>(end - Clock::now()));
        const auto status = followJob(
            submission_.connection(), job_.destination.id(), job.id, left,
            [&](const JobStatus &now) { news(i, now.text()); }, cancel);
        if (cancel && std::atomic_ref(*cancel).load() != 0)
            return outcome;
        if (!status) {
            outcome.failure = tr("The outcome of %1 (job %2) is unknown: %3")
                                  .arg(job.sheet, QString::number(job.id), status.failure().text);
            return outcome;
        }
        note(job, *status, outcome);
        if (!status->isOver())
            left.waiting = {};
    }
    return outcome;
}

void SheetPrinter::note(const SentJob &job, const JobStatus &status, Outcome &outcome) const
{
    const QString queue = job_.destination.id();
    const QString id = QString::number(job.id);
    const QString detail = status.detail();
    if (!status.isOver()) {
        const QString sentence =
            job_.destination.isAddress()
                ? tr("%1 (job %2) is not printed yet: %3. The printer keeps it; cancel it there.")
                : tr("%1 (job %2) is not printed yet: %3. The print server keeps it; \"cancel %2\" cancels "
                     "it.");
        outcome.waiting.append(sentence.arg(job.sheet, id, status.text()));
    } else if (status.state == JobStatus::State::Aborted) {
        if (!outcome.failure)
            outcome.failure =
                tr("The printer \"%1\" could not print %2 (job %3): %4. Look at the printer and print again.")
                    .arg(queue, job.sheet, id, detail.isEmpty() ? tr("it gave no reason") : detail);
    } else if (status.state == JobStatus::State::Canceled) {
        if (!outcome.failure)
            outcome.failure =
                tr("The job %3 for %2 on the printer \"%1\" was canceled (%4).")
                    .arg(queue, job.sheet, id, detail.isEmpty() ? tr("no reason given") : detail);
    } else {
        outcome.ids.append(job.id);
        outcome.printed.append(tr("Printed %1 on %2 (job %3)").arg(job.sheet, queue, id));
    }
}

QStringList SheetPrinter::cancelJobs(int &over)
{
    constexpr auto patience = 5s;
    over = 0;
    QStringList failures;
    for (const SentJob &job : std::as_const(sent_)) {
        CupsConnection &connection = submission_.connection();
        connection.heed(nullptr);
        connection.extend(patience);
        const auto canceled = cancelJob(connection, job_.destination.id(), job.id);
        if (!canceled)
            failures.append(tr("The job %1 for %2 could not be canceled: %3")
                                .arg(QString::number(job.id), job.sheet, canceled.failure().text));
        else if (!*canceled)
            ++over;
    }
    return failures;
}

} // namespace printdialog
