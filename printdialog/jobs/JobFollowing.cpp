// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobFollowing.h"

#include "CupsConnection.h"
#include "PlainText.h"
#include "QueueRecord.h"
#include "StateText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace printdialog {

namespace {

constexpr auto firstInterval = 20ms;
constexpr auto longestInterval = 1000ms;
constexpr auto cancelInterval = 50ms;
const QString printerStopped = QStringLiteral("printer-stopped");

struct FollowingText
{
    Q_DECLARE_TR_FUNCTIONS(JobFollowing)
};

Result<JobStatus, QueueFault> jobStatus(CupsConnection &connection, const QString &queue, int id)
{
    static constexpr std::array wanted = {"job-state", "job-state-reasons", "job-printer-state-message",
                                          "job-printer-state-reasons"};
    IppPointer request = ippRequest(IPP_OP_GET_JOB_ATTRIBUTES, connection.jobsUri());
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    JobStatus status;
    if (connection.status() == IPP_STATUS_ERROR_NOT_FOUND) {
        status.state = JobStatus::State::Gone;
        return status;
    }
    if (!answer || !connection.hasSucceeded())
        return connection.lastFailure(queue);
    ipp_attribute_t *state = ippFindAttribute(answer.get(), "job-state", IPP_TAG_ENUM);
    status.state = jobStateOf(state ? ippGetInteger(state, 0) : 0);
    status.reasons =
        textsOf(answer.get(), "job-state-reasons") + textsOf(answer.get(), "job-printer-state-reasons");
    status.message =
        plainText(textsOf(answer.get(), "job-printer-state-message").value(0).simplified(), shownTextLimit);
    return status;
}

class Following
{
public:
    Following(CupsConnection &connection, const QString &queue, int id, const FollowLimits &limits,
              int *cancel)
        : connection_(connection)
        , queue_(queue)
        , id_(id)
        , limits_(limits)
        , cancel_(cancel)
    {
    }

    Result<JobStatus, QueueFault> follow(const std::function<void(const JobStatus &)> &news)
    {
        std::optional<JobStatus> last;
        auto changed = start_;
        auto moved = start_; // when the job was last seen not waiting
        auto heard = start_;
        for (auto interval = std::chrono::milliseconds(firstInterval);;) {
            const auto status = look();
            const auto now = Clock::now();
            // Just before the total limit, there is no time left for an answer.
            if (!status && last && status.failure().reason == QueueFault::TimedOut &&
                now - start_ >= limits_.total)
                return *last;
            if (!status && !isCanceled()) {
                if (!isAway(status.failure().reason) || now - heard >= limits_.away ||
                    now - start_ >= limits_.total)
                    return status.failure();
                JobStatus old = last.value_or(JobStatus());
                old.isServerAway = true;
                if (!std::exchange(wasAway_, true) && news)
                    news(old);
            }
            if (status) {
                // A server that has lost the job cannot report its outcome.
                if (wasAway_ && status->state == JobStatus::State::Gone)
                    return queueFailure(
                        QueueFault::Failed, queue_,
                        FollowingText::tr("it was started again and does not know job %1").arg(id_));
                heard = now;
                if (std::exchange(wasAway_, false) || !last || *status != *last) {
                    changed = now;
                    last = *status;
                    if (news)
                        news(*last);
                }
            }
            if (!last || !last->isWaiting())
                moved = now;
            if (isCanceled() || (last && last->isOver()) || now - start_ >= limits_.total ||
                now - changed >= limits_.quiet || now - moved >= limits_.waiting)
                return last.value_or(JobStatus());
            pause(interval);
            interval = std::min<std::chrono::milliseconds>(interval * 3 / 2, longestInterval);
        }
    }

private:
    /// Whether no server is listening: while it restarts, it does not answer for some seconds.
    bool isAway(QueueFault fault) const
    {
        return fault == QueueFault::NoServer || (fault == QueueFault::Failed && connection_.isBroken());
    }

    bool isCanceled() const { return cancel_ && std::atomic_ref(*cancel_).load() != 0; }

    void pause(std::chrono::milliseconds time) const
    {
        const auto end = Clock::now() + time;
        while (!isCanceled() && Clock::now() < end)
            std::this_thread::sleep_for(std::min<Clock::duration>(cancelInterval, end - Clock::now()));
    }

    /// The limit for one request, long enough for a busy server even at the last one. Rounded to tenths of a
    /// second, since messages show it.
    std::chrono::milliseconds patience() const
    {
        using Tenths = std::chrono::duration<std::chrono::milliseconds::rep, std::deci>;
        const auto left = std::chrono::ceil<Tenths>(start_ + limits_.total - Clock::now());
        return std::clamp<std::chrono::milliseconds>(
            left, std::min<std::chrono::milliseconds>(1s, limits_.silent), limits_.silent);
    }

    Result<JobStatus, QueueFault> look()
    {
        connection_.extend(patience());
        auto status = jobStatus(connection_, queue_, id_);
        if (status && !status->isOver() && status->state != JobStatus::State::Processing) {
            if (const auto record = queueRecord(connection_, queue_))
                addPrintersWords(*record, *status);
        }
        return status;
    }

    CupsConnection &connection_;
    QString queue_;
    int id_;
    const FollowLimits &limits_;
    int *cancel_;
    const Clock::time_point start_ = Clock::now();
    bool wasAway_ = false; // since the last answer
};

} // namespace

bool JobStatus::isWaiting() const
{
    return state == State::Held || state == State::Stopped ||
           (state == State::Pending && reasons.contains(printerStopped));
}

QString JobStatus::detail() const
{
    const QString words = reasonsText(reasons);
    // CUPS reports "Paused" for every stopped printer.
    QString own = message == QLatin1String("Paused") ? QString() : message;
    if (own.isEmpty() || words.isEmpty())
        return words + own;
    if (state == State::Aborted)
        return own;
    return isWaiting() ? FollowingText::tr("%1: %2").arg(words, own) : words;
}

QString JobStatus::text() const
{
    if (isServerAway)
        return FollowingText::tr("the print server does not answer; asking again");
    const QString more = detail();
    switch (state) {
    case State::Pending:
    case State::Stopped:
        return more.isEmpty() ? FollowingText::tr("waiting for the printer") : more;
    case State::Held:
        return more.isEmpty() ? FollowingText::tr("held") : more;
    case State::Processing:
        return more.isEmpty() ? FollowingText::tr("printing")
                              : FollowingText::tr("%1: %2").arg(FollowingText::tr("printing"), more);
    case State::Canceled:
        return FollowingText::tr("canceled");
    case State::Aborted:
        return FollowingText::tr("failed");
    case State::Completed:
    case State::Gone:
        break;
    }
    return FollowingText::tr("printed");
}

JobStatus::State jobStateOf(int jobState)
{
    switch (jobState) {
    case IPP_JSTATE_HELD:
        return JobStatus::State::Held;
    case IPP_JSTATE_PROCESSING:
        return JobStatus::State::Processing;
    case IPP_JSTATE_STOPPED:
        return JobStatus::State::Stopped;
    case IPP_JSTATE_CANCELED:
        return JobStatus::State::Canceled;
    case IPP_JSTATE_ABORTED:
        return JobStatus::State::Aborted;
    case IPP_JSTATE_COMPLETED:
        return JobStatus::State::Completed;
    default:
        return JobStatus::State::Pending;
    }
}

void addPrintersWords(const QueueRecord &record, JobStatus &status)
{
    if (!record.isStopped)
        return;
    if (!status.reasons.contains(printerStopped))
        status.reasons.prepend(printerStopped);
    QStringList reasons = record.stateReasons;
    reasons.removeAll(QStringLiteral("paused"));
    status.reasons += reasons;
    if (status.message.isEmpty())
        status.message = plainText(record.stateMessage.simplified(), shownTextLimit);
}

Result<JobStatus, QueueFault> followJob(CupsConnection &connection, const QString &queue, int id,
                                        const FollowLimits &limits,
                                        const std::function<void(const JobStatus &)> &news, int *cancel)
{
    connection.heed(cancel);
    return Following(connection, queue, id, limits, cancel).follow(news);
}

Result<bool, QueueFault> cancelJob(CupsConnection &connection, const QString &queue, int id)
{
    IppPointer request = ippRequest(IPP_OP_CANCEL_JOB, connection.jobsUri());
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    const IppPointer answer = connection.answerTo(std::move(request), "/jobs/");
    const ipp_status_t status = connection.status();
    const bool isOver = status == IPP_STATUS_ERROR_NOT_POSSIBLE || status == IPP_STATUS_ERROR_NOT_FOUND;
    if (!isOver && (!answer || !connection.hasSucceeded()))
        return connection.lastFailure(queue);
    return !isOver;
}

} // namespace printdialog
