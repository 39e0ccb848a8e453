// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace {

constexpr double linear = 1.1; // the exponent, with room for what does not grow evenly

int metCount = 0;
int aimCount = 0;

QString verdict(bool isMet)
{
    ++aimCount;
    metCount += isMet ? 1 : 0;
    return isMet ? QStringLiteral("met") : QStringLiteral("MISSED");
}

QString withUnit(double value, const QString &unit)
{
    return QStringLiteral("%1 %2").arg(value, 0, 'f', value < 1.0 ? 4 : value < 100.0 ? 2 : 0).arg(unit);
}

void printLine(const QString &what, const QString &ours, const QString &peer, const QString &peerName,
               const QString &ratio, const QString &aim)
{
    std::printf("%-62s %11s %11s  %-12s %6s  %s\n", qPrintable(what), qPrintable(ours), qPrintable(peer),
                qPrintable(peerName), qPrintable(ratio), qPrintable(aim));
    std::fflush(stdout);
}

} // namespace

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

double millisecondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double monotonicMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void printHeader()
{
    printLine(QStringLiteral("what"), QStringLiteral("ours"), QStringLiteral("peer's"),
              QStringLiteral("peer"), QStringLiteral("ratio"), QStringLiteral("aim"));
}

void printRow(const BenchRow &row)
{
    const double ratio = row.peer && *row.peer > 0.0 ? row.ours / *row.peer : 0.0;
    QString aim;
    if (row.largestRatio && row.peer)
        aim = QStringLiteral("at most %1 times: %2")
                  .arg(*row.largestRatio)
                  .arg(verdict(ratio <= *row.largestRatio));
    else if (row.largest)
        aim = QStringLiteral("at most %1: %2")
                  .arg(withUnit(*row.largest, row.unit), verdict(row.ours <= *row.largest));
    printLine(row.what, withUnit(row.ours, row.unit), row.peer ? withUnit(*row.peer, row.unit) : QString(),
              row.peerName, row.peer ? QString::number(ratio, 'f', 2) : QString(), aim);
}

void printNote(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

void printCosts(const QString &what, const ProgramCost &ours, const BenchPeer &peer)
{
    if (ours.isEmpty()) {
        printNote(QStringLiteral("%1: corvel-print FAILED").arg(what));
        return;
    }
    BenchRow time{what, median(ours.milliseconds), peer.name, {}, peer.largestTimes, {}};
    BenchRow memory{what + QStringLiteral(": memory"),
                    median(ours.mebibytes),
                    peer.name,
                    {},
                    peer.largestMemory,
                    {},
                    QStringLiteral("MiB")};
    if (!peer.cost.isEmpty()) {
        time.peer = median(peer.cost.milliseconds);
        memory.peer = median(peer.cost.mebibytes);
    }
    printRow(time);
    printRow(memory);
}

void printGrowth(const QString &what, const QList<SizedTime> &times)
{
    double x = 0.0;
    double y = 0.0;
    double xx = 0.0;
    double xy = 0.0;
    for (const SizedTime &time : times) {
        const double size = std::log(time.size);
        const double duration = std::log(time.milliseconds);
        x += size;
        y += duration;
        xx += size * size;
        xy += size * duration;
    }
    const auto n = static_cast<double>(times.size());
    const double exponent = (n * xy - x * y) / (n * xx - x * x);
    printLine(QStringLiteral("%1: growth exponent").arg(what), QString::number(exponent, 'f', 2), {}, {}, {},
              QStringLiteral("linear: %1").arg(verdict(exponent <= linear)));
}

void printMet()
{
    std::printf("%d of %d aims met\n", metCount, aimCount);
}
