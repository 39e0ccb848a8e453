// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <sys/types.h>

#include <vector>

/// What runs of one program have taken, from before it is made to its end.
struct ProgramCost
{
    std::vector<double> milliseconds;
    std::vector<double> mebibytes; ///< At its peak; of the program itself, not of programs that it starts.

    bool isEmpty() const { return milliseconds.empty(); }
};

/// A running process's peak until now, in mebibytes.
double peakMemory(pid_t id);

/// Runs the program twice, its standard output thrown away: once for its time and once for its memory, since
/// watching the memory takes time. False when it cannot be run or fails; the cost then is as it was.
bool addRun(const QStringList &command, ProgramCost &cost);
