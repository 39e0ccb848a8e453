// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RemainingTime.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr RemainingTime::Time oneMoment = 250ms;

struct TimeText
{
    Q_DECLARE_TR_FUNCTIONS(RemainingTime)
};

} // namespace

void RemainingTime::note(Time sinceStart, int done)
{
    if (done <= (moments_.isEmpty() ? 0 : moments_.constLast().done))
        return;
    if (!moments_.isEmpty() && sinceStart - moments_.constLast().end < oneMoment)
        moments_.last() = {sinceStart, done};
    else
        moments_.append({sinceStart, done});
}

std::optional<RemainingTime::Time> RemainingTime::forSheets(int left) const
{
    QList<Time> each;
    Moment before{Time(), 0};
    for (const Moment &moment : moments_) {
        const int sheets = moment.done - before.done;
        each += QList<Time>(sheets, (moment.end - before.end) / sheets);
        before = moment;
    }
    if (each.size() < 2)
        return std::nullopt;
    // The median; the lower one of two, since the first sheet is the slow one.
    const auto middle = each.begin() + (each.size() - 1) / 2;
    std::nth_element(each.begin(), middle, each.end());
    return *middle * left;
}

QString RemainingTime::text(Time time)
{
    constexpr int fewMinutes = 10;
    constexpr int step = 5; // minutes
    constexpr int mostMinutes = 90;
    if (time < 1min)
        return TimeText::tr("less than a minute");
    const auto minutes = static_cast<int>(std::chrono::round<std::chrono::minutes>(time).count());
    if (minutes <= fewMinutes)
        return TimeText::tr("about %n minute(s)", nullptr, minutes);
    if (minutes <= mostMinutes)
        return TimeText::tr("about %n minute(s)", nullptr, (minutes + step / 2) / step * step);
    return TimeText::tr("about %n hour(s)", nullptr,
                        static_cast<int>(std::chrono::round<std::chrono::hours>(time).count()));
}

} // namespace printdialog
