// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OwnJob.h"

#include "AnswerAttributes.h"
#include "CupsConnection.h"
#include "PlainText.h"
#include "QueueRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QUrl>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace printdialog {

namespace {

constexpr int mostOver = 50;     // jobs that are over
constexpr qint64 sameClock = 60; // seconds between two clocks that are taken for one

struct JobText
{
    Q_DECLARE_TR_FUNCTIONS(OwnJob)
};

/// When the job got into its state. A server counts from a time of its own, and says what it has counted to.
QDateTime sinceOf(const AnswerAttributes &attributes, const JobStatus &status)
{
    const char *name = status.isOver()                                ? "time-at-completed"
                       : status.state == JobStatus::State::Processing ? "time-at-processing"
                                                                      : "time-at-creation";
    const qint64 time = attributes.number(name);
    if (time <= 0)
        return {};
    const qint64 serverNow = attributes.number("job-printer-up-time");
    const qint64 behind = serverNow > 0 ? QDateTime::currentSecsSinceEpoch() - serverNow : 0;
    return QDateTime::fromSecsSinceEpoch(std::abs(behind) < sameClock ? time : time + behind);
}

OwnJob jobOf(const AnswerAttributes &attributes, const Destination &destination)
{
    OwnJob job;
    job.id = attributes.number("job-id");
    job.title = attributes.text("job-name");
    if (job.title.isEmpty())
        job.title = JobText::tr("Untitled");
    job.printer = destination.isAddress()
                      ? plainText(destination.id(), shownTextLimit)
                      : plainText(QUrl(attributes.text("job-printer-uri")).fileName(), shownTextLimit);
    job.status.state = jobStateOf(attributes.number("job-state"));
    job.status.reasons =
        attributes.texts("job-state-reasons") + attributes.texts("job-printer-state-reasons");
    job.status.message = attributes.text("job-printer-state-message");
    job.since = sinceOf(attributes, job.status);
    return job;
}

QList<OwnJob> jobsIn(ipp_t *answer, const Destination &destination)
{
    QList<OwnJob> jobs;
    AnswerAttributes attributes;
    const auto take = [&] {
        const OwnJob job = jobOf(std::exchange(attributes, {}), destination);
        if (job.id > 0)
            jobs.append(job);
    };
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer); attribute;
         attribute = ippNextAttribute(answer)) {
        if (ippGetGroupTag(attribute) == IPP_TAG_JOB && ippGetName(attribute))
            attributes.add(attribute);
        else
            take();
    }
    take();
    return jobs;
}

/// The connection's sentences speak of a printer, or of the list of printers.
Failure<QueueFault> listFailure(Failure<QueueFault> failure)
{
    const QString reason = failure.detail.isEmpty() ? JobText::tr("it gave no reason") : failure.detail;
    if (failure.reason == QueueFault::Refused)
        failure.text = JobText::tr("The print server refused to list your jobs (%1). Ask its administrator.")
                           .arg(reason);
    else if (failure.reason == QueueFault::Failed)
        failure.text =
            JobText::tr("The print server could not list your jobs (%1). Try again, or check its log.")
                .arg(reason);
    return failure;
}

enum class Which { NotOver, Over };

Result<QList<OwnJob>, QueueFault> listed(CupsConnection &connection, const Destination &destination,
                                         Which which)
{
    static constexpr std::array wanted = {"job-id",
                                          "job-name",
                                          "job-printer-uri",
                                          "job-state",
                                          "job-state-reasons",
                                          "job-printer-state-message",
                                          "job-printer-state-reasons",
                                          "job-printer-up-time",
                                          "time-at-creation",
                                          "time-at-processing",
                                          "time-at-completed"};
    IppPointer request = ippRequest(IPP_OP_GET_JOBS, connection.jobsUri());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr,
                 which == Which::Over ? "completed" : "not-completed");
    if (which == Which::Over)
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", mostOver);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    connection.extend();
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    if (!answer || !(connection.hasSucceeded() || connection.status() == IPP_STATUS_ERROR_NOT_FOUND))
        return listFailure(connection.lastFailure(destination.isAddress() ? destination.id() : QString()));
    return jobsIn(answer.get(), destination);
}

/// Each printer is asked once.
void addPrintersWords(CupsConnection &connection, const Destination &destination, QList<OwnJob> &jobs)
{
    constexpr qsizetype mostPrinters = 20;
    QHash<QString, std::optional<QueueRecord>> records;
    for (OwnJob &job : jobs) {
        if (job.status.state == JobStatus::State::Processing || job.status.state == JobStatus::State::Held)
            continue;
        auto record = records.constFind(job.printer);
        if (record == records.cend() && records.size() < mostPrinters) {
            connection.extend();
            const auto found =
                queueRecord(connection, destination.isAddress() ? destination : Destination(job.printer));
            record = records.insert(job.printer, found ? std::optional(*found) : std::nullopt);
        }
        if (record != records.cend() && *record)
            addPrintersWords(**record, job.status);
    }
}

ipp_op_t operationOf(JobAct act)
{
    switch (act) {
    case JobAct::Cancel:
        return IPP_OP_CANCEL_JOB;
    case JobAct::Hold:
        return IPP_OP_HOLD_JOB;
    case JobAct::Release:
        return IPP_OP_RELEASE_JOB;
    case JobAct::PrintAgain:
        break;
    }
    return IPP_OP_RESTART_JOB;
}

QString sentence(JobAct act)
{
    switch (act) {
    case JobAct::Cancel:
        return JobText::tr("Job %1 (%2) could not be canceled: %3");
    case JobAct::Hold:
        return JobText::tr("Job %1 (%2) could not be held: %3");
    case JobAct::Release:
        return JobText::tr("Job %1 (%2) could not be released: %3");
    case JobAct::PrintAgain:
        break;
    }
    return JobText::tr("Job %1 (%2) could not be printed again: %3");
}

} // namespace

bool isPossible(JobAct act, const OwnJob &job)
{
    using State = JobStatus::State;
    switch (act) {
    case JobAct::Cancel:
        return !job.status.isOver();
    case JobAct::Hold:
        return job.status.state == State::Pending;
    case JobAct::Release:
        return job.status.state == State::Held;
    case JobAct::PrintAgain:
        break;
    }
    return job.status.isOver();
}

Result<QList<OwnJob>, QueueFault> ownJobs(CupsConnection &connection, const Destination &destination)
{
    auto jobs = listed(connection, destination, Which::NotOver);
    if (!jobs)
        return jobs;
    addPrintersWords(connection, destination, *jobs);
    auto over = listed(connection, destination, Which::Over);
    if (!over)
        return over;
    std::stable_sort(over->begin(), over->end(),
                     [](const OwnJob &one, const OwnJob &other) { return one.since > other.since; });
    for (const OwnJob &job : std::as_const(*over)) {
        // It may have ended between the two answers.
        const auto known = std::find_if(jobs->begin(), jobs->end(),
                                        [&job](const OwnJob &each) { return each.id == job.id; });
        if (known == jobs->end())
            jobs->append(job);
    }
    return jobs;
}

std::optional<Failure<QueueFault>> perform(JobAct act, const OwnJob &job, CupsConnection &connection)
{
    IppPointer request = ippRequest(operationOf(act), connection.jobsUri());
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job.id);
    connection.extend();
    const IppPointer answer = connection.answerTo(std::move(request), "/jobs/");
    if (answer && connection.hasSucceeded())
        return std::nullopt;
    const ipp_status_t status = connection.status();
    const bool isTooLate = status == IPP_STATUS_ERROR_NOT_POSSIBLE || status == IPP_STATUS_ERROR_NOT_FOUND;
    if (act == JobAct::Cancel && isTooLate)
        return std::nullopt;
    Failure<QueueFault> failure = connection.lastFailure(job.printer);
    const QString id = QString::number(job.id);
    if (act == JobAct::PrintAgain && isTooLate)
        failure.text =
            JobText::tr("Job %1 (%2) cannot be printed again, because the print server has not kept "
                        "its document. Open the photo in this program and print it from there.")
                .arg(id, job.title);
    else if (isTooLate)
        failure.text =
            JobText::tr("Job %1 (%2) has moved on meanwhile. Look at its state.").arg(id, job.title);
    else
        failure.text = sentence(act).arg(id, job.title, failure.text);
    return failure;
}

} // namespace printdialog
