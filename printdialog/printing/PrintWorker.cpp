// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintWorker.h"

#include "RemainingTime.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <numeric>
#include <optional>

namespace printdialog {

/// Raised by the window, read by the thread and by libcups, which needs plain ints.
struct PrintWorker::Flags
{
    static void raise(int &flag) { std::atomic_ref(flag).store(1); }
    static bool isRaised(int &flag) { return std::atomic_ref(flag).load() != 0; }

    int cancel = 0; ///< send nothing more
    int keep = 0;   ///< with cancel: do not cancel jobs that were sent
    int leave = 0;  ///< stop following
    int finish = 0; ///< with leave: print nothing after the current sheet
    int following = 0;
    std::atomic<int> sent = 0;
    std::atomic<int> total = 0;
};

namespace {

// Shares of the progress bar: sending is quick, printing is slow.
constexpr int sendingShare = 100;
constexpr int photoShare = 1000;

/// Reports the progress in words and as a share of the run.
class Progress : public PrintRunListener
{
public:
    using Say = std::function<void(const QString &text, qint64 done, qint64 total)>;

    Progress(qsizetype count, const Destination &destination, std::atomic<int> &sent, int &following,
             const Say &say)
        : count_(count)
        , destination_(destination)
        , sent_(sent)
        , following_(following)
        , say_(say)
    {
    }

    /// A photo is being checked before the run.
    void checking(qsizetype photo, qsizetype count, const QString &name) const
    {
        const QString text = PrintWorker::tr("Checking %1").arg(name);
        say_(count == 1 ? text : PrintWorker::tr("%1 of %2: %3").arg(photo + 1).arg(count).arg(text), 0, 0);
    }
    void sending(qsizetype photo, const QString &name, qint64 sent, qint64 total) override
    {
        const qint64 share = destination_.isBuiltIn() ? photoShare : sendingShare;
        const QString text = destination_.isBuiltIn()
                                 ? PrintWorker::tr("Writing %1").arg(name)
                                 : PrintWorker::tr("Sending %1 to %2").arg(name, destination_.id());
        const bool isUnknown = count_ == 1 && total == 0;
        if (destination_.isBuiltIn())
            noteDone(photo, count_ - photo);
        say_(counted(photo, text), photo * share + (total > 0 ? sent * share / total : 0),
             isUnknown ? 0 : count_ * photoShare);
    }
    void printed(const QString & /*sentence*/) override { ++sent_; }
    void skipped(const QString & /*sentence*/) override {}
    void following(qsizetype photo, const QString &name, const QString &state) override
    {
        std::atomic_ref(following_).store(1);
        noteDone(photo, sent_ - photo);
        const qint64 done = count_ * sendingShare + photo * (photoShare - sendingShare);
        say_(counted(photo, PrintWorker::tr("%1: %2").arg(name, state)), done,
             count_ == 1 ? 0 : count_ * photoShare);
    }

private:
    void noteDone(qsizetype done, qsizetype left)
    {
        using namespace std::chrono;
        time_.note(duration_cast<milliseconds>(steady_clock::now() - start_), static_cast<int>(done));
        remaining_ = time_.forSheets(static_cast<int>(left));
    }

    /// The text, preceded by the photo's number within the run and the time that the rest takes.
    QString counted(qsizetype photo, const QString &text) const
    {
        if (count_ == 1)
            return text;
        const QString number = QString::number(photo + 1);
        const QString count = QString::number(count_);
        return remaining_ ? PrintWorker::tr("%1 of %2, %3: %4")
                                .arg(number, count, RemainingTime::text(*remaining_), text)
                          : PrintWorker::tr("%1 of %2: %3").arg(number, count, text);
    }

    qsizetype count_;
    Destination destination_;
    std::atomic<int> &sent_;
    int &following_;
    Say say_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    RemainingTime time_;
    std::optional<RemainingTime::Time> remaining_;
};

/// Whether a photo is damaged that is not accepted. Mostly known already; but a thousand photos take minutes.
bool isAnyDamaged(const QList<PlacedPhoto> &photos, const Progress &progress, int &cancel)
{
    for (qsizetype i = 0; i < photos.size() && std::atomic_ref(cancel).load() == 0; ++i) {
        const PlacedPhoto &placed = photos.at(i);
        if (placed.isAccepted)
            continue;
        if (!placed.photo.isChecked())
            progress.checking(i, photos.size(), placed.photo.fileName());
        const auto damage = placed.photo.damage();
        if (damage && damage->reason == PhotoFault::Damaged)
            return true; // others cannot be read, and are left out later
    }
    return false;
}

PrintOutcome printed(const Arrangement &arrangement, const SheetPlan &plan, const QList<qsizetype> &indexes,
                     PrintRun &run, const Progress &progress, int &cancel)
{
    PrintOutcome outcome;
    const QList<Arrangement::SheetRange> jobs = arrangement.jobs(plan);
    const auto jobAt = [&](qsizetype index) {
        return arrangement.jobSheets(plan, jobs.at(index));
    };
    if (plan.failure()) {
        outcome.failure = plan.failure()->text;
        return outcome;
    }
    // Before anything is printed, so that the user can decide about all photos.
    outcome.hasDamaged = isAnyDamaged(arrangement.photos, progress, cancel);
    if (outcome.hasDamaged)
        return outcome;
    outcome = run.print(indexes.size(), [&](qsizetype job) { return jobAt(indexes.at(job)); });
    for (UnprintedSheet &sheet : outcome.unprinted) {
        sheet.index = indexes.at(sheet.index);
        if (sheet.sentence.isEmpty())
            sheet.sentence = PrintWorker::tr("%1 was not printed.").arg(jobAt(sheet.index).name);
    }
    return outcome;
}

} // namespace

PrintWorker::PrintWorker(QObject *parent)
    : QObject(parent)
{
}

PrintWorker::~PrintWorker()
{
    if (!thread_)
        return;
    disconnect(thread_.get(), nullptr, this, nullptr);
    giveUp();
    thread_->wait();
}

bool PrintWorker::isFollowing() const
{
    return flags_ && Flags::isRaised(flags_->following);
}

int PrintWorker::sent() const
{
    return flags_ ? flags_->sent.load() : 0;
}

int PrintWorker::total() const
{
    return flags_ ? flags_->total.load() : 0;
}

void PrintWorker::cancel()
{
    if (!flags_)
        return;
    Flags::raise(flags_->cancel);
    Flags::raise(flags_->leave);
}

void PrintWorker::finish()
{
    if (!flags_)
        return;
    Flags::raise(flags_->finish); // before the thread sees that it is to stop following
    Flags::raise(flags_->leave);
}

void PrintWorker::giveUp()
{
    if (!flags_)
        return;
    Flags::raise(flags_->keep); // before the thread sees the cancel flag
    cancel();
}

void PrintWorker::print(const Arrangement &arrangement, const PrintJob &job,
                        const std::optional<QList<qsizetype>> &only)
{
    auto outcome = std::make_shared<PrintOutcome>();
    flags_ = std::make_shared<Flags>();
    // The destructor waits for the thread, so the thread may use this object.
    thread_.reset(
        QThread::create([this, flags = flags_, wanted = job.isRaw() ? arrangement.unplaced() : arrangement,
                         job, only, outcome] {
            const SheetPlan plan = wanted.plan(job.page);
            const auto say = [this](const QString &text, qint64 done, qint64 total) {
                Q_EMIT progress(text, done, total);
            };
            QList<qsizetype> indexes = only.value_or(QList<qsizetype>(wanted.jobs(plan).size()));
            if (!only)
                std::iota(indexes.begin(), indexes.end(), 0);
            flags->total = static_cast<int>(indexes.size());
            Progress listener(indexes.size(), job.destination, flags->sent, flags->following, say);
            PrintRun run(job, listener, {&flags->cancel, &flags->keep, &flags->leave, &flags->finish});
            *outcome = printed(wanted, plan, indexes, run, listener, flags->cancel);
        }));
    connect(thread_.get(), &QThread::finished, this, [this, outcome] {
        thread_.release()->deleteLater();
        flags_.reset();
        Q_EMIT finished(*outcome);
    });
    thread_->start();
}

} // namespace printdialog
