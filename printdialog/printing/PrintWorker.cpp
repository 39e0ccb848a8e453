// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintWorker.h"

#include "SentJobs.h"

#include <algorithm>
#include <atomic>

namespace printdialog {

/// Raised by the window, looked at by the thread and by libcups, which wants plain numbers.
struct PrintWorker::Flags
{
    static void raise(int &flag) { std::atomic_ref(flag).store(1); }
    static bool isRaised(int &flag) { return std::atomic_ref(flag).load() != 0; }

    int cancel = 0; ///< send nothing more
    int keep = 0;   ///< but leave alone what was sent
    int leave = 0;  ///< follow no longer
    int following = 0;
    std::atomic<int> sent = 0;
};

namespace {

using Progress = std::function<void(const QString &text, qint64 done, qint64 total)>;

// Parts of the bar: sending is soon done, printing is not.
constexpr int sendingShare = 100;
constexpr int photoShare = 1000;

/// Where the photo stands among those of the run, in front of what is done with it.
QString counted(qsizetype photo, qsizetype count, const QString &text)
{
    return count == 1 ? text : PrintWorker::tr("%1 of %2: %3").arg(photo + 1).arg(count).arg(text);
}

/// Sends the photos, until one fails or the run is cancelled. Answers the jobs of a queue.
SentJobs sendAll(const QList<PlacedPhoto> &photos, const PrintTarget &target, const PrintJob &job,
                 int &cancel, std::atomic<int> &sentPhotos, const Progress &progress, PrintOutcome &outcome)
{
    SentJobs jobs(target.queue);
    // Mostly known already; before anything is printed, so that the user can decide about all of it.
    outcome.hasDamaged = std::any_of(photos.begin(), photos.end(), [](const PlacedPhoto &placed) {
        return !placed.isAccepted && placed.photo.damage();
    });
    if (outcome.hasDamaged)
        return jobs;
    QString text;
    JobControl control;
    control.cancel = &cancel;
    const qint64 share = target.queue.isEmpty() ? photoShare : sendingShare;
    const qint64 all = photos.size() * photoShare;
    control.sent = [&](qint64 sent, qint64 total) {
        progress(text, sentPhotos * share + (total > 0 ? sent * share / total : 0), all);
    };
    PhotoPrinter printer(target, control);
    PrintJob photoJob = job;
    for (const auto &[photo, placement, isAccepted] : photos) {
        if (std::atomic_ref(cancel).load() != 0)
            break;
        text = counted(sentPhotos, photos.size(),
                       target.queue.isEmpty()
                           ? PrintWorker::tr("Writing %1").arg(photo.fileName())
                           : PrintWorker::tr("Sending %1 to %2").arg(photo.fileName(), target.queue));
        progress(text, sentPhotos * share, photos.size() == 1 ? 0 : all);
        photoJob.placement = placement;
        photoJob.checksPhoto = !isAccepted;
        const auto printed = printer.print(photo, photoJob);
        if (!printed) {
            outcome.failure = printed.failure().text;
            outcome.hasOtherPpd = printed.failure().reason.queue == QueueFault::Changed;
            break;
        }
        if (const int *id = std::get_if<int>(&*printed)) {
            jobs.add(photo.fileName(), *id);
            outcome.jobs.append(*id);
        } else {
            ++outcome.done;
        }
        outcome.printed.append(printedText(photo, target, *printed));
        ++sentPhotos;
    }
    return jobs;
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

void PrintWorker::cancel()
{
    if (!flags_)
        return;
    Flags::raise(flags_->cancel);
    Flags::raise(flags_->leave);
}

void PrintWorker::giveUp()
{
    if (!flags_)
        return;
    Flags::raise(flags_->keep); // before the thread sees that it is to end
    cancel();
}

void PrintWorker::print(const QList<PlacedPhoto> &photos, const PrintTarget &target, const PrintJob &job)
{
    auto outcome = std::make_shared<PrintOutcome>();
    flags_ = std::make_shared<Flags>();
    // This object waits for the thread before it goes, so that the thread may name it.
    thread_.reset(QThread::create([this, flags = flags_, photos, target, job, outcome] {
        const Progress tell = [this](const QString &text, qint64 done, qint64 total) {
            Q_EMIT progress(text, done, total);
        };
        outcome->total = static_cast<int>(photos.size());
        const SentJobs jobs = sendAll(photos, target, job, flags->cancel, flags->sent, tell, *outcome);
        Flags::raise(flags->following);
        if (!jobs.isEmpty() && outcome->failure.isEmpty()) {
            const auto show = [&](int photo, const QString &state) {
                const QString text = tr("%1: %2").arg(photos.value(photo).photo.fileName(), state);
                const qint64 done = outcome->total * sendingShare + photo * qint64(photoShare - sendingShare);
                tell(counted(photo, photos.size(), text), done,
                     photos.size() == 1 ? 0 : photos.size() * photoShare);
            };
            const SentJobs::Outcome followed = jobs.follow({}, show, &flags->leave);
            outcome->isFollowed = true;
            outcome->printed = followed.printed;
            outcome->jobs = followed.ids;
            outcome->done = static_cast<int>(followed.printed.size());
            outcome->waiting = followed.waiting;
            outcome->failure = followed.failure.value_or(QString());
        }
        if (Flags::isRaised(flags->cancel) && !Flags::isRaised(flags->keep)) {
            int over = 0;
            const QStringList failures = jobs.cancel(&over);
            outcome->done = std::max(outcome->done, over);
            outcome->wasStopped = failures.isEmpty();
            outcome->failure = failures.join(u' ');
        }
    }));
    connect(thread_.get(), &QThread::finished, this, [this, outcome] {
        thread_.release()->deleteLater();
        flags_.reset();
        Q_EMIT finished(*outcome);
    });
    thread_->start();
}

} // namespace printdialog
