// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <csignal>

namespace printdialog {

/// While it exists, Ctrl+C and termination requests (SIGINT, SIGTERM) raise a flag instead of ending the
/// program, so that it can cancel its jobs. A second one ends it at once. One object at a time.
class InterruptFlag
{
public:
    InterruptFlag();
    ~InterruptFlag();
    Q_DISABLE_COPY_MOVE(InterruptFlag)

    /// Non-zero once raised; valid as long as the program runs.
    int *flag() const;
    bool isRaised() const;

private:
    struct sigaction interruptBefore_ = {};
    struct sigaction terminateBefore_ = {};
};

} // namespace printdialog
