// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PatientPrinter.h"

#include "CupsConnection.h"
#include "JobTemplate.h"
#include "PlainText.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

using End = PatientOutcome::End;

constexpr auto firstPause = 500ms;
constexpr auto longestPause = 60s;
constexpr auto stopInterval = 50ms;
constexpr auto forever = std::chrono::hours(10L * 365 * 24);
constexpr FollowLimits patience = {.waiting = forever, .quiet = forever, .away = forever, .total = forever};

/// A printer that reports one of these while it prints a job waits for somebody, although CUPS calls the job
/// "processing".
bool needsSomebody(const QString &reason)
{
    constexpr std::array reasons = {
        "media-empty",         "media-needed",     "media-jam",           "input-tray-missing",
        "output-tray-missing", "output-area-full", "marker-supply-empty", "marker-ribbon-empty",
        "marker-waste-full",   "toner-empty",      "cover-open",          "door-open",
        "interlock-open",      "offline"};
    // Backends report "offline-report" for a printer that is switched off.
    return !reason.endsWith(QLatin1String("-warning")) && std::ranges::any_of(reasons, [&](const char *each) {
        return reason.startsWith(QLatin1String(each));
    });
}

bool isHeldUp(const JobStatus &status)
{
    return status.isServerAway || status.isWaiting() ||
           (!status.isOver() && std::ranges::any_of(status.reasons, needsSomebody));
}

} // namespace

PatientPrinter::PatientPrinter(const PrintJob &job, const News &news, PatientStop &stop)
    : job_(job)
    , news_(news)
    , stop_(stop)
{
}

PatientOutcome PatientPrinter::print(const JobSheets &sheets, const Steps &steps)
{
    const QString &name = sheets.name;
    for (pause_ = firstPause;;) {
        QString objection;
        std::optional<BegunJob> begun;
        // A new connection for each one: hours may lie between two.
        SheetPrinter printer(job_, {}, &stop_.cancel);
        printer.onBeginning([&] {
            if (isStopped())
                return false;
            BegunJob job{job_.destination.id(), job_.options.value(JobTemplate::titleKey(), name), lastJob_,
                         QDateTime::currentSecsSinceEpoch()};
            objection = steps.begin(job);
            if (objection.isEmpty())
                begun = job;
            return begun.has_value();
        });
        const auto printed = printer.print(sheets);
        if (printed) {
            goesOn(name);
            const QList<int> sent = printer.sentJobs();
            if (sent.isEmpty())
                return {End::Printed, *printed};
            steps.sent(sent.constFirst());
            return follow(name, job_.destination.id(), sent.constFirst(), false);
        }
        const SheetPrinter::Fault fault = printed.failure().reason;
        if (begun && fault.mayBePrinted)
            return resume(name, *begun, steps.sent);
        if (begun)
            steps.withdraw();
        if (isStopped())
            return {End::Stopped, {}};
        if (fault.isPhotoFault)
            return {End::Unfit, printed.failure().text};
        if (fault.queue == QueueFault::Changed)
            return {End::OtherPrinter, printed.failure().text};
        waits(tr("%1 waits. It is printed when that is over: %2")
                  .arg(name, objection.isEmpty() ? printed.failure().text : objection));
        if (!pause())
            return {End::Stopped, {}};
        if (!steps.isThere()) {
            isWaiting_ = false;
            return {End::Vanished, {}};
        }
    }
}

PatientOutcome PatientPrinter::resume(const QString &name, const QString &printer, int job)
{
    return follow(name, printer, job, true);
}

PatientOutcome PatientPrinter::resume(const QString &name, const BegunJob &begun,
                                      const std::function<void(int job)> &sent)
{
    for (pause_ = firstPause;;) {
        CupsConnection connection(patience.silent, &stop_.leave,
                                  PrinterAddress::of(Destination(begun.printer).queue));
        connection.actFor(begun.printer);
        const auto jobs = ownJobs(connection, begun.printer);
        if (isStopped())
            return {End::Stopped, {}};
        if (jobs) {
            const auto job = found(begun, *jobs);
            if (!job)
                return {End::Unclear,
                        tr("It was being sent, and the print server has no job that must be its.")};
            sent(*job);
            return follow(name, begun.printer, *job, true);
        }
        waits(tr("%1 waits. It was being sent, and only the print server knows whether it is printed: %2")
                  .arg(name, jobs.failure().text));
        if (!pause())
            return {End::Stopped, {}};
    }
}

/// Jobs are made one at a time: the only one of the title since then is the right one. The title of all jobs
/// says nothing of the first one, which may be mistaken for an earlier run's.
std::optional<int> PatientPrinter::found(const BegunJob &begun, const QList<OwnJob> &jobs) const
{
    const auto shown = [](const QString &title) {
        return plainText(title, shownTextLimit).simplified();
    };
    std::optional<int> only;
    for (const OwnJob &job : jobs) {
        if (job.id <= begun.after || job.printer != Destination(begun.printer).queue ||
            job.title != shown(begun.title) || !job.since.isValid() ||
            job.since.toSecsSinceEpoch() < begun.since)
            continue;
        if (only)
            return std::nullopt;
        only = job.id;
    }
    const bool isForAll = job_.options.contains(JobTemplate::titleKey());
    return isForAll && begun.after == 0 ? std::nullopt : only;
}

PatientOutcome PatientPrinter::follow(const QString &name, const QString &printer, int job, bool isResumed)
{
    lastJob_ = std::max(lastJob_, job);
    const QString id = QString::number(job);
    CupsConnection connection(patience.silent, nullptr, PrinterAddress::of(Destination(printer).queue));
    connection.actFor(printer);
    // A server that was not asked all the time may have lost the job, or made another one of that number.
    bool isSure = !isResumed;
    for (pause_ = firstPause;;) {
        const auto status = followJob(
            connection, printer, job, patience, [&](const JobStatus &now) { note(name, job, now); },
            &stop_.leave);
        if (isStopped() && !(status && status->isOver()))
            return {End::Stopped, {}, job};
        if (!status) {
            isSure = false;
            waits(tr("%1 (job %2) waits. It was sent, and is not sent again: %3")
                      .arg(name, id, status.failure().text));
            if (!pause())
                return {End::Stopped, {}, job};
            continue;
        }
        if (!status->isOver())
            continue;
        goesOn(name);
        const QString detail = status->detail();
        if (status->state == JobStatus::State::Aborted)
            return {
                End::Failed,
                tr("The printer \"%1\" could not print %2 (job %3): %4. Look at the printer and print again.")
                    .arg(printer, name, id, detail.isEmpty() ? tr("it gave no reason") : detail),
                job};
        if (status->state == JobStatus::State::Canceled)
            return {End::Failed,
                    tr("The job %3 for %2 on the printer \"%1\" was canceled (%4).")
                        .arg(printer, name, id, detail.isEmpty() ? tr("no reason given") : detail),
                    job};
        if (status->state == JobStatus::State::Gone && !isSure)
            return {End::Unclear, tr("The print server does not know its job %1 any more.").arg(id), job};
        return {End::Printed, tr("Printed %1 on %2 (job %3)").arg(name, printer, id), job};
    }
}

void PatientPrinter::note(const QString &name, int job, const JobStatus &status)
{
    if (isHeldUp(status))
        waits(tr("%1 (job %2) waits: %3. It is printed when that is over.")
                  .arg(name, QString::number(job), status.text()));
    else
        goesOn(name);
}

void PatientPrinter::waits(const QString &sentence)
{
    if (!std::exchange(isWaiting_, true))
        news_(sentence);
}

void PatientPrinter::goesOn(const QString &name)
{
    if (std::exchange(isWaiting_, false))
        news_(tr("Printing %1 continues.").arg(name));
}

bool PatientPrinter::isStopped() const
{
    return std::atomic_ref(stop_.leave).load() != 0;
}

bool PatientPrinter::pause()
{
    const auto end = std::chrono::steady_clock::now() + pause_;
    pause_ = std::min<std::chrono::milliseconds>(pause_ * 2, longestPause);
    while (!isStopped() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(stopInterval);
    return !isStopped();
}

} // namespace printdialog
