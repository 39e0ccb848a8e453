// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ProgramCost.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

/// How often each thing is measured, besides a first time that only warms up. Odd, so that there is a middle.
constexpr int benchRuns = 11;

/// The middle one of the values; they are put in order.
double median(std::vector<double> values);

/// The milliseconds that the work takes.
double millisecondsOf(const std::function<void()> &work);
/// Of the system's monotonic clock: the same in every process.
double monotonicMilliseconds();

/// One line of the table that is printed: what was measured, ours beside a peer's or a limit. Times in
/// milliseconds.
struct BenchRow
{
    QString what;
    double ours = 0.0;
    QString peerName;
    std::optional<double> peer;
    std::optional<double> largestRatio; ///< the aim: ours at most this many times the peer's
    std::optional<double> largest;      ///< the aim: ours at most this
    QString unit = QStringLiteral("ms");
};

void printHeader();
void printRow(const BenchRow &row);
/// A line that says what was not measured, and why.
void printNote(const QString &text);

/// Another program that does the same, and the aims: ours at most these many times its time and its memory.
struct BenchPeer
{
    QString name;
    ProgramCost cost;
    std::optional<double> largestTimes;
    std::optional<double> largestMemory;
};
/// Two rows: time and peak memory; a peer without runs is left out.
void printCosts(const QString &what, const ProgramCost &ours, const BenchPeer &peer);

/// One size and the time that it took.
struct SizedTime
{
    double size;
    double milliseconds;
};
/// Prints by which power of the size the time grows: the slope of the line that fits the logarithms best. The
/// aim is linear growth.
void printGrowth(const QString &what, const QList<SizedTime> &times);

/// How many aims were met, of how many.
void printMet();
