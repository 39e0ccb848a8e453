// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BatchRun.h"

#include "ArrangementText.h"
#include "Console.h"
#include "JobPlan.h"
#include "JobSummary.h"
#include "PrintedNames.h"
#include "RequestedArrangement.h"
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
    auto opened = requestedArrangement(commandLine_);
    if (!opened)
        return fail(opened.failure().text);
    const auto requested = openRequestedSession(commandLine_);
    if (!requested)
        return fail(requested.failure().text);
    auto job = jobOfRequested(*requested, console_);
    if (!job)
        return fail(job.failure().text);
    DialogSession &session = *requested->session;
    useStyle(commandLine_, requested->style, *opened);
    if (const QString beyond = pagesBeyondText(*opened); !beyond.isEmpty())
        console_.complain(beyond);
    if (commandLine_.summary)
        console_.writeLines(summaryLines(
            jobSummary(session, requested->copies, opened->placements(), opened->layout, opened->pages)));
    job->folder = {commandLine_.outputFolder(), commandLine_.overwrite, opened->paths(), commandLine_.onePdf};
    if (const auto unfit = whyNotOnePdf(*job))
        return fail(*unfit);
    const Arrangement arrangement = job->isRaw() ? opened->unplaced() : *opened;
    return commandLine_.dryRun ? showPlan(arrangement, *job, session.printer().uri)
                               : printAll(arrangement, *job);
}

std::optional<QString> BatchRun::whyNotOnePdf(const PrintJob &job)
{
    if (!job.folder.document)
        return std::nullopt;
    if (!job.destination.isBuiltIn())
        return tr("--one-pdf is for the built-in printer, and this is \"%1\". Leave it out, or name the "
                  "built-in printer.")
            .arg(job.destination.id());
    return PrintedNames(job.folder).whyUnfit();
}

int BatchRun::showPlan(const Arrangement &arrangement, const PrintJob &job, const QString &uri)
{
    const SheetPlan sheets = arrangement.plan(job.page);
    if (sheets.failure())
        return fail(sheets.failure()->text);
    PrintedNames names(job.folder);
    QJsonArray array;
    QStringList lines;
    for (const Arrangement::SheetRange &range : arrangement.jobs(sheets)) {
        const JobSheets printed = arrangement.jobSheets(sheets, range);
        const auto plan = JobPlan::make(printed, job, uri, names, {range.first + 1, sheets.sheets().size()});
        if (!plan && plan.failure().reason.isPhotoFault) {
            skipped(PrintRun::leftOutText(printed, plan.failure().text));
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

int BatchRun::printAll(const Arrangement &arrangement, const PrintJob &job)
{
    const SheetPlan plan = arrangement.plan(job.page);
    if (plan.failure())
        return fail(plan.failure()->text);
    FollowLimits limits;
    if (commandLine_.wait)
        limits.total = *commandLine_.wait;
    PrintRun run(job, *this, {interrupt_.flag(), nullptr, interrupt_.flag()}, limits);
    const QList<Arrangement::SheetRange> jobs = arrangement.jobs(plan);
    const PrintOutcome outcome =
        run.print(jobs.size(), [&](qsizetype index) { return arrangement.jobSheets(plan, jobs.at(index)); });
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

void BatchRun::sending(qsizetype /*sheet*/, const QString &name, qint64 sent, qint64 total)
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

void BatchRun::following(qsizetype /*sheet*/, const QString &name, const QString &state)
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
