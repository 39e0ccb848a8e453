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
    : listener_(listener)
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

PrintOutcome PrintRun::print(qsizetype count, const SheetSource &sheets)
{
    outcome_.total = static_cast<int>(count);
    // The check of the photos takes longest, so the next ones are checked on the other cores while this one
    // prints.
    struct Ahead
    {
        PrintSheet sheet;
        std::unique_ptr<PhotoCheck> check;
    };
    std::deque<Ahead> ahead;
    const qsizetype most = 1 + std::clamp(std::thread::hardware_concurrency(), 1U, mostChecks);
    for (index_ = 0; index_ < count && !isRaised(flags_.cancel); ++index_) {
        while (std::ssize(ahead) < most && index_ + std::ssize(ahead) < count) {
            Ahead next{sheets(index_ + std::ssize(ahead)), nullptr};
            next.check = std::make_unique<PhotoCheck>(next.sheet.photosToCheck());
            ahead.push_back(std::move(next));
        }
        const Ahead current = std::move(ahead.front());
        ahead.pop_front();
        if (!printOne(current.sheet))
            break;
    }
    const bool isFine = outcome_.failure.isEmpty() && !isRaised(flags_.cancel);
    if (isFine && !printer_.sentJobs().isEmpty() && limits_.total > FollowLimits::Time::zero())
        follow();
    // Files of the built-in printer cannot be taken back, which needs no message when all are written.
    const bool isOver = index_ == count && printer_.sentJobs().isEmpty();
    if (isRaised(flags_.cancel) && !isRaised(flags_.keep) && !isOver)
        cancelJobs();
    return outcome_;
}

/// False: stop; do not print the next sheet.
bool PrintRun::printOne(const PrintSheet &sheet)
{
    name_ = sheet.name;
    listener_.sending(index_, name_, 0, 0);
    const auto printed = printer_.print(sheet);
    if (!printed && isRaised(flags_.cancel))
        return false;
    if (!printed && printed.failure().reason.isPhotoFault) {
        outcome_.skipped.append(printed.failure().text);
        listener_.skipped(printed.failure().text);
        return true;
    }
    if (!printed) {
        outcome_.failure = printed.failure().text;
        outcome_.hasOtherPpd = printed.failure().reason.queue == QueueFault::Changed;
        return false;
    }
    outcome_.jobs = printer_.sentJobs();
    if (outcome_.jobs.isEmpty())
        ++outcome_.done;
    outcome_.names.append(name_);
    outcome_.printed.append(*printed);
    listener_.printed(outcome_.printed.constLast());
    return true;
}

void PrintRun::follow()
{
    const QStringList names = outcome_.names;
    const auto news = [&](int sheet, const QString &state) {
        listener_.following(sheet, names.value(sheet), state);
    };
    const SheetPrinter::Outcome followed = printer_.follow(limits_, news, flags_.leave);
    outcome_.isFollowed = true;
    outcome_.printed = followed.printed;
    outcome_.jobs = followed.ids;
    outcome_.done = static_cast<int>(followed.printed.size());
    outcome_.waiting = followed.waiting;
    outcome_.failure = followed.failure.value_or(QString());
}

void PrintRun::cancelJobs()
{
    int over = 0;
    const QStringList failures = printer_.cancelJobs(over);
    outcome_.done = std::max(outcome_.done, over);
    outcome_.wasStopped = failures.isEmpty();
    outcome_.failure = failures.join(u' ');
}

} // namespace printdialog
