// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>

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

void printHeader()
{
    std::printf("%-66s %12s %12s %8s %12s\n", "what", "ours", "peer", "ratio", "aim");
}

void printRow(const BenchRow &row)
{
    const QString ours = QStringLiteral("%1 %2").arg(row.ours, 0, 'f', 3).arg(row.unit);
    const QString peer =
        row.peer ? QStringLiteral("%1 %2").arg(*row.peer, 0, 'f', 3).arg(row.unit) : QString();
    const double ratio = row.peer && *row.peer > 0.0 ? row.ours / *row.peer : 0.0;
    QString aim;
    if (row.largestRatio)
        aim = QStringLiteral("<= %1 x %2")
                  .arg(*row.largestRatio)
                  .arg(QLatin1String(ratio <= *row.largestRatio ? "met" : "MISSED"));
    else if (row.largest)
        aim = QStringLiteral("<= %1 %2")
                  .arg(*row.largest)
                  .arg(QLatin1String(row.ours <= *row.largest ? "met" : "MISSED"));
    std::printf("%-66s %12s %12s %8s %12s\n", qPrintable(row.what), qPrintable(ours), qPrintable(peer),
                row.peer ? qPrintable(QString::number(ratio, 'f', 2)) : "", qPrintable(aim));
    std::fflush(stdout);
}

void printGrowth(const QString &what, double smallSize, double smallTime, double largeSize, double largeTime)
{
    const double exponent = std::log(largeTime / smallTime) / std::log(largeSize / smallSize);
    std::printf("%-66s %12.2f %34s\n", qPrintable(QStringLiteral("%1: growth exponent").arg(what)), exponent,
                exponent <= 1.1 ? "<= 1.1 met" : "<= 1.1 MISSED");
    std::fflush(stdout);
}
