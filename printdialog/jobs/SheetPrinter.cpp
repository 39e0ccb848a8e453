// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetPrinter.h"

#include "BuiltInDocument.h"
#include "BuiltInPrinter.h"
#include "CupsConnection.h"
#include "PhotoCheck.h"

#include <algorithm>
#include <atomic>
#include <utility>

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

void SheetPrinter::onBeginning(const JobSubmission::Beginning &beginning)
{
    beginning_ = beginning;
    submission_.onBeginning(beginning);
}

SheetPrinter::~SheetPrinter() = default;

Result<QString, SheetPrinter::Fault> SheetPrinter::print(const JobSheets &sheets)
{
    if (!job_.destination.isBuiltIn())
        return send(sheets);
    if (beginning_ && !beginning_())
        return failureOf(queueFailure(QueueFault::Canceled, job_.destination.id()));
    if (job_.folder.document)
        return addPages(sheets);
    const auto files = BuiltInPrinter::print(sheets, job_, names_);
    if (!files)
        return failureOf(files.failure());
    return tr("Printed %1: %2").arg(sheets.name, files->pdf);
}

Result<QString, SheetPrinter::Fault> SheetPrinter::addPages(const JobSheets &sheets)
{
    // A damaged photo leaves the other pages alone, and so does one that has changed or gone meanwhile.
    if (const auto damage = PhotoCheck(sheets.photosToCheck()).wait())
        return Failure<Fault>{{std::nullopt, true}, damage->text, damage->detail};
    if (!document_) {
        documentName_ = names_.nameFor(*job_.folder.document + PrintedNames::pageSuffix);
        auto opened = BuiltInDocument::open(documentName_, job_, names_.folder(), hasPages_);
        if (!opened)
            return failureOf(opened.failure());
        document_ = *std::move(opened);
    }
    for (const PrintSheet &sheet : sheets.sheets) {
        if (const auto failure = document_->add(sheet)) {
            if (pages_ == 0)
                document_.reset();
            return failureOf(*failure);
        }
        ++pages_;
    }
    hasBacksFirst_ = hasBacksFirst(sheets, job_);
    return tr("Printed %1: page %2 of %3")
        .arg(sheets.name, QString::number(pages_), documentName_ + PrintedNames::pageSuffix);
}

Result<QString, SheetPrinter::Fault> SheetPrinter::finishDocument()
{
    const auto document = std::exchange(document_, nullptr);
    if (hasBacksFirst_)
        document->putFrontsFirst();
    const auto files = document->finish();
    if (!files)
        return failureOf(files.failure());
    return files->pdf;
}

Result<QString, SheetPrinter::Fault> SheetPrinter::send(const JobSheets &sheets)
{
    if (const auto failure = whyTooMany(sheets, job_))
        return *failure;
    const auto document = documentOf(sheets, job_);
    if (!document)
        return document.failure();
    PrintJob job = job_;
    job.copies *= sheets.copies;
    const auto id = submission_.send(job, *document);
    if (!id) {
        auto failure = failureOf(id.failure());
        failure.reason.mayBePrinted = submission_.mayHaveMadeJob();
        return failure;
    }
    sent_.append({document->name, *id, std::nullopt});
    return tr("Sent %1 to %2 as job %3").arg(document->name, job_.destination.id(), QString::number(*id));
}

std::optional<Failure<SheetPrinter::Fault>> SheetPrinter::whyTooMany(const JobSheets &sheets,
                                                                     const PrintJob &job)
{
    const int copies = job.copies * sheets.copies;
    if (job.destination.isBuiltIn() || copies <= mostJobCopies)
        return std::nullopt;
    return Failure<Fault>{
        {},
        tr("%1 copies of %2 are more than the %3 that a job can have. Print it in several parts.")
            .arg(QString::number(copies), sheets.name, QString::number(mostJobCopies)),
        {}};
}

Result<JobDocument, SheetPrinter::Fault> SheetPrinter::documentOf(const JobSheets &sheets,
                                                                  const PrintJob &job)
{
    PhotoCheck check(sheets.photosToCheck());
    auto document = jobDocument(sheets, job);
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

SheetPrinter::Outcome SheetPrinter::outcome() const
{
    Outcome outcome;
    for (const SentJob &job : sent_) {
        const QString id = QString::number(job.id);
        outcome.jobs += job.end.value_or(JobEnd{
            JobEnd::Fate::Unknown, tr("The outcome of %1 (job %2) is unknown.").arg(job.sheet, id), job.id});
        const JobEnd::Fate fate = outcome.jobs.constLast().fate;
        if (!outcome.failure && (fate == JobEnd::Fate::NotPrinted || fate == JobEnd::Fate::Unknown))
            outcome.failure = outcome.jobs.constLast().sentence;
    }
    return outcome;
}

SheetPrinter::Outcome SheetPrinter::follow(const FollowLimits &limits,
                                           const std::function<void(int, const QString &)> &news, int *cancel)
{
    using Clock = std::chrono::steady_clock;
    FollowLimits left = limits;
    const auto end = Clock::now() + limits.total;
    for (int i = 0; i < static_cast<int>(sent_.size()); ++i) {
        SentJob &job = sent_[i];
        if (job.end)
            continue;
        left.total = std::max(FollowLimits::Time(),
                              std::chrono::duration_cast<FollowLimits::Time>(end - Clock::now()));
        const auto status = followJob(
            submission_.connection(), job_.destination.id(), job.id, left,
            [&](const JobStatus &now) { news(i, now.text()); }, cancel);
        if (cancel && std::atomic_ref(*cancel).load() != 0)
            break;
        if (!status) {
            job.end = {JobEnd::Fate::Unknown,
                       tr("The outcome of %1 (job %2) is unknown: %3")
                           .arg(job.sheet, QString::number(job.id), status.failure().text),
                       job.id};
            break;
        }
        job.end = endOf(job, *status);
        if (!status->isOver())
            left.waiting = {};
    }
    return outcome();
}

SheetPrinter::JobEnd SheetPrinter::endOf(const SentJob &job, const JobStatus &status) const
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
        return {JobEnd::Fate::Waiting, sentence.arg(job.sheet, id, status.text()), job.id};
    }
    if (status.state == JobStatus::State::Aborted)
        return {JobEnd::Fate::NotPrinted,
                tr("The printer \"%1\" could not print %2 (job %3): %4. Look at the printer and print again.")
                    .arg(queue, job.sheet, id, detail.isEmpty() ? tr("it gave no reason") : detail),
                job.id};
    if (status.state == JobStatus::State::Canceled)
        return {JobEnd::Fate::NotPrinted,
                tr("The job %3 for %2 on the printer \"%1\" was canceled (%4).")
                    .arg(queue, job.sheet, id, detail.isEmpty() ? tr("no reason given") : detail),
                job.id};
    return {JobEnd::Fate::Printed, tr("Printed %1 on %2 (job %3)").arg(job.sheet, queue, id), job.id};
}

/// Asks for the job's state once, and keeps its end when it is over.
std::optional<JobStatus> SheetPrinter::look(SentJob &job)
{
    FollowLimits once;
    once.total = {};
    const auto status = followJob(submission_.connection(), job_.destination.id(), job.id, once);
    if (status && status->isOver())
        job.end = endOf(job, *status);
    return status ? std::optional(*status) : std::nullopt;
}

std::optional<Failure<QueueFault>> SheetPrinter::cancel(SentJob &job)
{
    constexpr auto patience = 5s;
    CupsConnection &connection = submission_.connection();
    connection.heed(nullptr);
    connection.extend(patience);
    const QString id = QString::number(job.id);
    const auto canceled = cancelJob(connection, job_.destination.id(), job.id);
    if (!canceled) {
        Failure<QueueFault> failure = canceled.failure();
        failure.text = tr("The job %1 for %2 could not be canceled: %3").arg(id, job.sheet, failure.text);
        job.end = {JobEnd::Fate::Waiting, failure.text, job.id};
        return failure;
    }
    if (*canceled)
        job.end = {JobEnd::Fate::Canceled, tr("%1 (job %2) was canceled.").arg(job.sheet, id), job.id};
    else
        look(job);
    return std::nullopt;
}

SheetPrinter::Outcome SheetPrinter::cancelJobs(Canceling which)
{
    qsizetype first = 0;
    bool isReachable = true;
    if (which == Canceling::AllButCurrent) {
        for (bool isOver = true; isReachable && isOver && first < sent_.size(); ++first) {
            isReachable = sent_.at(first).end || look(sent_[first]);
            isOver = sent_.at(first).end.has_value();
        }
    }
    QStringList failures;
    // The last one first, so that no other begins to print meanwhile.
    for (qsizetype i = sent_.size() - 1; isReachable && i >= first; --i) {
        SentJob &job = sent_[i];
        if (job.end && job.end->fate != JobEnd::Fate::Waiting)
            continue;
        if (which == Canceling::AllButCurrent) {
            const auto status = look(job);
            isReachable = status.has_value();
            if (!status || status->isOver() || status->state == JobStatus::State::Processing ||
                status->state == JobStatus::State::Stopped)
                continue;
        }
        if (const auto failure = cancel(job)) {
            failures.prepend(failure->text);
            isReachable = failure->reason != QueueFault::NoServer &&
                          failure->reason != QueueFault::TimedOut && !submission_.connection().isBroken();
        }
    }
    Outcome result = outcome();
    result.failure = failures.isEmpty() ? std::nullopt : std::optional(failures.join(u' '));
    return result;
}

} // namespace printdialog
