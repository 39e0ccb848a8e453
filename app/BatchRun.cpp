// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BatchRun.h"

#include "Console.h"
#include "JobPlan.h"
#include "PhotoCheck.h"
#include "PhotoList.h"
#include "RequestedSession.h"
#include "SummaryLines.h"

#include <QtCore/QJsonArray>

namespace printdialog {

namespace {

const QString pageSizeKey = QStringLiteral("PageSize");

QMap<QString, QString> summaryOf(const SummaryEntries &entries)
{
    QMap<QString, QString> summary;
    for (const auto &[label, text] : entries)
        summary.insert(label, text);
    return summary;
}

} // namespace

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
    // Begun at once, since it takes as long as everything up to the printing.
    std::optional<PhotoCheck> firstCheck;
    if (const auto first = photos->first(); first && commandLine_.checks)
        firstCheck.emplace(*first);
    const auto requested = openRequestedJob(commandLine_);
    if (!requested)
        return fail(requested.failure().text);
    for (const QString &sentence : requested->leftOut)
        console_.complain(sentence);
    DialogSession &session = *requested->session;
    const auto options = session.jobOptions();
    if (!options)
        return fail(options.failure().text);

    const PpdDocument &ppd = session.ppd();
    const std::optional<PageSize> page = ppd.pageSize(options->options.value(pageSizeKey));
    if (!page) {
        return fail(tr("No page size is chosen. Choose one with -o PageSize=%1 or another one of "
                       "--list-options.")
                        .arg(ppd.pageSizes().constFirst().keyword));
    }
    for (const QString &dropped : options->dropped)
        console_.complain(dropped);

    if (commandLine_.summary)
        console_.writeLines(summaryLines(jobSummary(session, requested->copies, {commandLine_.placement})));
    PrintJob job;
    job.printer = session.printer().name;
    job.page = {page->points, page->imageable};
    job.placement = commandLine_.placement;
    job.options = options->options;
    job.copies = requested->copies;
    job.summary = summaryOf(session.summary());
    job.checksPhoto = commandLine_.checks;
    const PrinterDescription &printer = session.printer();
    job.queue = printer.hasPpd ? QueueTerms::ofPpd(ppd) : QueueTerms::withoutPpd();
    return commandLine_.dryRun ? showPlan(*photos, printer, job) : printAll(*photos, printer, job);
}

int BatchRun::showPlan(PhotoList &photos, const PrinterDescription &printer, const PrintJob &job)
{
    PrintedNames names(outputFolder());
    QJsonArray array;
    QStringList lines;
    for (qsizetype i = 0; i < photos.size(); ++i) {
        const auto photo = photos.take(i);
        if (!photo)
            return fail(photo.failure().text);
        const auto plan = JobPlan::make(*photo, printer, job, names);
        if (!plan && leaveOut(plan.failure()))
            continue;
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

OutputFolder BatchRun::outputFolder() const
{
    return {commandLine_.outputFolder(), commandLine_.overwrite, commandLine_.photos};
}

int BatchRun::printAll(PhotoList &photos, const PrinterDescription &printer, const PrintJob &job)
{
    const PrintTarget target{printer.isBuiltIn ? QString() : printer.name, outputFolder()};
    QString current;
    JobControl control;
    control.cancel = interrupt_.flag();
    control.sent = [this, &current](qint64 sent, qint64 total) {
        progress_.show(current, sent, total);
    };
    PhotoPrinter photoPrinter(target, control);
    SentJobs jobs(target.queue);
    for (qsizetype i = 0; i < photos.size(); ++i) {
        const auto photo = photos.take(i);
        if (!photo)
            return failAfterDone(photo.failure().text);
        if (interrupt_.isRaised())
            return takeBack(jobs);
        current = photo->fileName();
        progress_.show(current);
        const auto printed = photoPrinter.print(*photo, job);
        if (!printed && interrupt_.isRaised())
            return takeBack(jobs);
        if (!printed && leaveOut(printed.failure()))
            continue;
        if (!printed)
            return failAfterDone(printed.failure().text);
        progress_.clear();
        console_.writeLine(printedText(*photo, target, *printed));
        if (const int *id = std::get_if<int>(&*printed))
            jobs.add(current, *id);
        done_.append(current);
    }
    return endOf(jobs.isEmpty() || commandLine_.wait == std::chrono::seconds(0) ? static_cast<int>(exitDone)
                                                                                : followAll(jobs));
}

int BatchRun::followAll(const SentJobs &jobs)
{
    FollowLimits limits;
    if (commandLine_.wait)
        limits.total = *commandLine_.wait;
    const auto show = [this](int photo, const QString &state) {
        progress_.show(tr("%1: %2").arg(done_.value(photo), state));
    };
    const SentJobs::Outcome outcome = jobs.follow(limits, show, interrupt_.flag());
    progress_.clear();
    if (interrupt_.isRaised())
        return takeBack(jobs);
    for (const QString &waiting : outcome.waiting)
        console_.complain(waiting);
    return outcome.failure ? fail(*outcome.failure) : static_cast<int>(exitDone);
}

int BatchRun::takeBack(const SentJobs &jobs)
{
    progress_.clear();
    const QStringList failures = jobs.cancel();
    if (!failures.isEmpty())
        return fail(failures.join(u' '));
    return fail(jobs.isEmpty() ? tr("Cancelled; nothing more is printed.")
                               : tr("Cancelled; the jobs sent were taken back from the printer."));
}

/// Whether the others can be printed all the same.
bool BatchRun::leaveOut(const Failure<PhotoPrinter::Fault> &failure)
{
    if (!failure.reason.isPhotos)
        return false;
    progress_.clear();
    console_.complain(failure.text);
    hasLeftOut_ = true;
    return true;
}

int BatchRun::endOf(int status) const
{
    return hasLeftOut_ ? static_cast<int>(exitFailed) : status;
}

int BatchRun::failAfterDone(const QString &sentence)
{
    if (done_.isEmpty())
        return fail(sentence);
    return fail(tr("%1 Printed before it: %2.").arg(sentence, done_.join(QLatin1String(", "))));
}

int BatchRun::fail(const QString &sentence)
{
    progress_.clear();
    console_.complain(sentence);
    return exitFailed;
}

} // namespace printdialog
