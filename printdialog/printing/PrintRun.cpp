// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintRun.h"

#include "PhotoCheck.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <iterator>
#include <memory>
#include <thread>

namespace printdialog {

namespace {

constexpr unsigned mostChecks = 4; // at a time: each holds a photo's file in memory

} // namespace

PrintRun::PrintRun(const PrintJob &job, PrintRunListener &listener, const PrintRunFlags &flags,
                   const FollowLimits &limits)
    : job_(job)
    , listener_(listener)
    , flags_(flags)
    , limits_(limits)
    , printer_(
          job, [this](qint64 sent, qint64 total) { listener_.sending(index_, name_, sent, total); },
          flags.cancel)
{
}

bool PrintRun::isRaised(int *flag)
{
    return flag && std::atomic_ref(*flag).load() != 0;
}

QString PrintRun::leftOutText(const JobSheets &sheets, const QString &why)
{
    const QString first = sheets.firstPhoto().path();
    const bool isAlone = std::ranges::all_of(sheets.sheets, [&first](const PrintSheet &sheet) {
        return std::ranges::all_of(sheet.photos,
                                   [&first](const SheetPhoto &laid) { return laid.photo.path() == first; });
    });
    return isAlone ? why : tr("%1 The sheet with %2 is not printed.").arg(why, sheets.name);
}

PrintOutcome PrintRun::print(qsizetype count, const JobSource &jobs)
{
    outcome_.total = static_cast<int>(count);
    // Before anything is printed, since the user has to divide the job.
    for (qsizetype i = 0; i < count && outcome_.failure.isEmpty(); ++i) {
        const JobSheets sheets = jobs(i);
        if (const auto failure = SheetPrinter::whyTooMany(sheets, job_))
            outcome_.failure = failure->text;
        if (sheets.hasPages())
            printer_.expectPages();
    }
    // The check of the photos takes longest, so the next ones are checked on the other cores while this one
    // prints.
    struct Ahead
    {
        JobSheets sheets;
        std::unique_ptr<PhotoCheck> check;
    };
    std::deque<Ahead> ahead;
    const qsizetype most = 1 + std::clamp(std::thread::hardware_concurrency(), 1U, mostChecks);
    for (index_ = 0;
         index_ < count && outcome_.failure.isEmpty() && !isRaised(flags_.cancel) && !isRaised(flags_.finish);
         ++index_) {
        while (std::ssize(ahead) < most && index_ + std::ssize(ahead) < count) {
            Ahead next{jobs(index_ + std::ssize(ahead)), nullptr};
            next.check = std::make_unique<PhotoCheck>(next.sheets.photosToCheck());
            ahead.push_back(std::move(next));
        }
        const Ahead current = std::move(ahead.front());
        ahead.pop_front();
        if (!printOne(current.sheets))
            break;
    }
    noteUnsent();
    if (printer_.hasDocument())
        finishDocument();
    const bool hasJobs = !printer_.sentJobs().isEmpty();
    const bool isFollowed = hasJobs && limits_.total > FollowLimits::Time::zero();
    if (isFollowed && whyUnsent_.isEmpty() && !isRaised(flags_.cancel))
        follow(flags_.leave);
    if (isFollowed && isRaised(flags_.finish) && !isRaised(flags_.cancel)) {
        cancelJobs(SheetPrinter::Canceling::AllButCurrent);
        follow(flags_.cancel);
    }
    if (isRaised(flags_.finish))
        outcome_.wasStopped = outcome_.failure.isEmpty() && !outcome_.unprinted.isEmpty();
    // Files of the built-in printer cannot be taken back, which needs no message when all are written.
    if (isRaised(flags_.cancel) && !isRaised(flags_.keep) && (hasJobs || !outcome_.unprinted.isEmpty())) {
        cancelJobs(SheetPrinter::Canceling::All);
        outcome_.wasStopped = outcome_.failure.isEmpty();
    }
    return outcome_;
}

/// The sheets from the one on at which the sending has ended. What has become of that one may be known.
void PrintRun::noteUnsent()
{
    whyUnsent_ = outcome_.failure;
    outcome_.unknown = unanswered_;
    for (qsizetype index = index_ + unanswered_.size(); index < outcome_.total; ++index)
        outcome_.unprinted.append({index, index == index_ ? whyUnsent_ : QString()});
}

/// All of its pages are printed, or none.
void PrintRun::finishDocument()
{
    if (outcome_.failure.isEmpty() && !isRaised(flags_.cancel) && !isRaised(flags_.finish)) {
        const auto path = printer_.finishDocument();
        if (path) {
            outcome_.document = *path;
            outcome_.done = static_cast<int>(outcome_.printed.size());
            for (const QString &sentence : std::as_const(outcome_.printed))
                listener_.printed(sentence);
            return;
        }
        outcome_.failure = path.failure().text;
    }
    outcome_.printed.clear();
    outcome_.names.clear();
    for (const qsizetype index : std::as_const(pages_))
        outcome_.unprinted.append({index, QString()});
    std::ranges::sort(outcome_.unprinted, {}, &UnprintedSheet::index);
}

/// False: stop; do not print the next sheet.
bool PrintRun::printOne(const JobSheets &sheets)
{
    name_ = sheets.name;
    listener_.sending(index_, name_, 0, 0);
    const auto printed = printer_.print(sheets);
    if (!printed && printed.failure().reason.queue == QueueFault::Unknown) {
        outcome_.failure = printed.failure().text;
        unanswered_.append(outcome_.failure);
        return false;
    }
    if (!printed && isRaised(flags_.cancel))
        return false;
    if (!printed && printed.failure().reason.isPhotoFault) {
        outcome_.skipped.append(leftOutText(sheets, printed.failure().text));
        listener_.skipped(outcome_.skipped.constLast());
        return true;
    }
    if (!printed) {
        outcome_.failure = printed.failure().text;
        outcome_.hasOtherPpd = printed.failure().reason.queue == QueueFault::Changed;
        return false;
    }
    outcome_.names.append(name_);
    outcome_.printed.append(*printed);
    outcome_.jobs = printer_.sentJobs();
    if (printer_.hasDocument()) {
        pages_.append(index_);
        return true;
    }
    if (outcome_.jobs.isEmpty())
        ++outcome_.done;
    else
        sent_.append(index_);
    listener_.printed(outcome_.printed.constLast());
    return true;
}

void PrintRun::follow(int *leave)
{
    const auto news = [&](int sheet, const QString &state) {
        listener_.following(sheet, outcome_.names.value(sheet), state);
    };
    note(printer_.follow(limits_, news, leave));
}

void PrintRun::cancelJobs(SheetPrinter::Canceling which)
{
    const SheetPrinter::Outcome canceled = printer_.cancelJobs(which);
    if (!sent_.isEmpty())
        note(canceled);
    outcome_.failure = canceled.failure.value_or(QString());
}

/// What is known of the jobs takes the place of what was noted when they were sent.
void PrintRun::note(const SheetPrinter::Outcome &found)
{
    using Fate = SheetPrinter::JobEnd::Fate;
    outcome_.isFollowed = true;
    outcome_.failure = whyUnsent_.isEmpty() ? found.failure.value_or(QString()) : whyUnsent_;
    outcome_.printed.clear();
    outcome_.jobs.clear();
    outcome_.waiting.clear();
    outcome_.unknown = unanswered_;
    erase_if(outcome_.unprinted, [this](const UnprintedSheet &sheet) { return sent_.contains(sheet.index); });
    for (qsizetype i = 0; i < found.jobs.size(); ++i) {
        const SheetPrinter::JobEnd &job = found.jobs.at(i);
        switch (job.fate) {
        case Fate::Printed:
            outcome_.printed.append(job.sentence);
            outcome_.jobs.append(job.id);
            break;
        case Fate::Waiting:
            outcome_.waiting.append(job.sentence);
            break;
        case Fate::NotPrinted:
        case Fate::Canceled:
            outcome_.unprinted.append({sent_.at(i), job.sentence});
            break;
        case Fate::Unknown:
            outcome_.unknown.append(job.sentence);
            break;
        }
    }
    std::ranges::sort(outcome_.unprinted, {}, &UnprintedSheet::index);
    outcome_.done = static_cast<int>(outcome_.printed.size());
}

} // namespace printdialog
