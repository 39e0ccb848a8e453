// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BatchRun.h"

#include "Console.h"
#include "JobPlan.h"
#include "JobSummary.h"
#include "PhotoList.h"
#include "PrintedNames.h"
#include "RequestedSession.h"
#include "SummaryLines.h"

#include <QtCore/QJsonArray>

namespace printdialog {

BatchRun::BatchRun(const CommandLine &commandLine, Console &console)
    : commandLine_(commandLine)
    , console_(console)
{
}

int BatchRun::run()
{
    auto photos = PhotoList::open(commandLine_.photos);
    if (!photos)
        return fail(photos.failure().text);
    const auto requested = openRequestedSession(commandLine_);
    if (!requested)
        return fail(requested.failure().text);
    auto job = jobOfRequested(*requested, console_);
    if (!job)
        return fail(job.failure().text);
    DialogSession &session = *requested->session;
    if (commandLine_.summary)
        console_.writeLines(summaryLines(jobSummary(session, requested->copies, {commandLine_.placement})));
    job->folder = {commandLine_.outputFolder(), commandLine_.overwrite, commandLine_.photos};
    return commandLine_.dryRun ? showPlan(*photos, *job, session.printer().uri) : printAll(*photos, *job);
}

int BatchRun::showPlan(PhotoList &photos, const PrintJob &job, const QString &uri)
{
    PrintedNames names(job.folder);
    QJsonArray array;
    QStringList lines;
    for (qsizetype i = 0; i < photos.size(); ++i) {
        auto photo = photos.take(i);
        if (!photo)
            return fail(photo.failure().text);
        const auto plan = JobPlan::make(placed(*std::move(photo)), job, uri, names);
        if (!plan && plan.failure().reason.isPhotoFault) {
            skipped(plan.failure().text);
            continue;
        }
        if (!plan)
            return fail(plan.failure().text);
        array.append(plan->json());
        if (!lines.isEmpty())
            lines.append(QString());
        lines += plan->lines();
    }
    if (commandLine_.json)
        console_.writeJson(array);
    else
        console_.writeLines(lines);
    return endOf(exitDone);
}

PlacedPhoto BatchRun::placed(Photo photo) const
{
    return {std::move(photo), commandLine_.placement, !commandLine_.checks};
}

int BatchRun::printAll(PhotoList &photos, const PrintJob &job)
{
    FollowLimits limits;
    if (commandLine_.wait)
        limits.total = *commandLine_.wait;
    PrintRun run(job, *this, {interrupt_.flag(), nullptr, interrupt_.flag()}, limits);
    const PrintOutcome outcome =
        run.print(photos.size(), [&](qsizetype index) -> Result<PlacedPhoto, PhotoFault> {
            auto photo = photos.take(index);
            if (!photo)
                return photo.failure();
            return placed(*std::move(photo));
        });
    progress_.clear();
    return conclude(outcome, !job.destination.isBuiltIn());
}

int BatchRun::conclude(const PrintOutcome &outcome, bool isQueue)
{
    if (outcome.wasStopped)
        return fail(isQueue && !outcome.names.isEmpty()
                        ? tr("Canceled; the jobs already sent were canceled, too.")
                        : tr("Canceled; nothing more is printed."));
    for (const QString &waiting : outcome.waiting)
        console_.complain(waiting);
    if (outcome.failure.isEmpty())
        return endOf(exitDone);
    const bool isAboutAll = outcome.isFollowed || interrupt_.isRaised(); // not about one photo
    if (isAboutAll || outcome.names.isEmpty())
        return fail(outcome.failure);
    return fail(
        tr("%1 Printed before it: %2.").arg(outcome.failure, outcome.names.join(QLatin1String(", "))));
}

// Progress

void BatchRun::sending(qsizetype /*photo*/, const QString &name, qint64 sent, qint64 total)
{
    if (total == 0)
        progress_.show(name);
    else
        progress_.show(name, sent, total);
}

void BatchRun::printed(const QString &sentence)
{
    progress_.clear();
    console_.writeLine(sentence);
}

/// The other photos can still be printed.
void BatchRun::skipped(const QString &sentence)
{
    progress_.clear();
    console_.complain(sentence);
    hasSkipped_ = true;
}

void BatchRun::following(qsizetype /*photo*/, const QString &name, const QString &state)
{
    progress_.show(tr("%1: %2").arg(name, state));
}

int BatchRun::endOf(int status) const
{
    return hasSkipped_ ? static_cast<int>(exitFailed) : status;
}

int BatchRun::fail(const QString &sentence)
{
    progress_.clear();
    console_.complain(sentence);
    return exitFailed;
}

} // namespace printdialog
