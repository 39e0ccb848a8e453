// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintWorker.h"

#include "SentJobs.h"

#include <atomic>

namespace printdialog {

/// Raised by the window, looked at by the thread and by libcups, which wants plain numbers.
struct PrintWorker::Flags
{
    static void raise(int &flag) { std::atomic_ref(flag).store(1); }
    static bool isRaised(int &flag) { return std::atomic_ref(flag).load() != 0; }

    int cancel = 0;
    int leave = 0;
    int following = 0;
};

namespace {

using Progress = std::function<void(const QString &text, qint64 done, qint64 total)>;

/// Sends the photos, until one fails or the run is cancelled. Answers the jobs of a queue.
SentJobs sendAll(const QList<PlacedPhoto> &photos, const PrintTarget &target, const PrintJob &job,
                 int &cancel, const Progress &progress, PrintOutcome &outcome)
{
    SentJobs jobs(target.queue);
    QString text;
    JobControl control;
    control.cancel = &cancel;
    control.sent = [&](qint64 sent, qint64 total) {
        progress(text, sent, total);
    };
    PhotoPrinter printer(target, control);
    PrintJob photoJob = job;
    for (const auto &[photo, placement] : photos) {
        if (std::atomic_ref(cancel).load() != 0)
            break;
        text = target.queue.isEmpty()
                   ? PrintWorker::tr("Writing %1").arg(photo.fileName())
                   : PrintWorker::tr("Sending %1 to %2").arg(photo.fileName(), target.queue);
        progress(text, 0, 0);
        photoJob.placement = placement;
        const auto printed = printer.print(photo, photoJob);
        if (!printed) {
            outcome.failure = printed.failure().text;
            outcome.hasOtherPpd = printed.failure().reason.queue == QueueFault::Changed;
            break;
        }
        if (const int *id = std::get_if<int>(&*printed))
            jobs.add(photo.fileName(), *id);
        outcome.printed.append(printedText(photo, target, *printed));
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
    if (isFollowing())
        leave();
    else
        cancel();
    thread_->wait();
}

bool PrintWorker::isFollowing() const
{
    return flags_ && Flags::isRaised(flags_->following);
}

void PrintWorker::cancel()
{
    if (!flags_)
        return;
    Flags::raise(flags_->cancel);
    Flags::raise(flags_->leave);
}

void PrintWorker::leave()
{
    if (flags_)
        Flags::raise(flags_->leave);
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
        const SentJobs jobs = sendAll(photos, target, job, flags->cancel, tell, *outcome);
        Flags::raise(flags->following);
        if (!jobs.isEmpty() && outcome->failure.isEmpty()) {
            const auto show = [&](int photo, const QString &state) {
                tell(tr("%1: %2").arg(photos.value(photo).photo.fileName(), state), 0, 0);
            };
            const SentJobs::Outcome followed = jobs.follow({}, show, &flags->leave);
            outcome->printed = followed.printed;
            outcome->waiting = followed.waiting;
            outcome->failure = followed.failure.value_or(QString());
        }
        if (Flags::isRaised(flags->cancel)) {
            const QStringList failures = jobs.cancel();
            outcome->failure = failures.isEmpty() ? tr("Printing was stopped.") : failures.join(u' ');
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
