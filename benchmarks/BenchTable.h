// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

/// The middle one of the values; they are put in order.
double median(std::vector<double> values);

/// The milliseconds that the work takes.
double millisecondsOf(const std::function<void()> &work);

/// One line of the table that is printed: what was measured, ours beside a peer's or a limit. Times in
/// milliseconds.
struct BenchRow
{
    QString what;
    double ours = 0.0;
    std::optional<double> peer;
    std::optional<double> largestRatio; ///< the aim: ours at most this many times the peer's
    std::optional<double> largest;      ///< the aim: ours at most this
    QString unit = QStringLiteral("ms");
};

void printHeader();
void printRow(const BenchRow &row);

/// Prints by which power of the size the time grows.
void printGrowth(const QString &what, double smallSize, double smallTime, double largeSize, double largeTime);
