// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <chrono>

namespace printdialog {

/// A progress line at the bottom of a terminal, on standard error. Shows nothing when that is not a terminal.
/// Main thread only.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine();
    Q_DISABLE_COPY_MOVE(ProgressLine)

    /// Shows the current activity, without a bar.
    void show(const QString &text);
    /// The same with a bar.
    void show(const QString &text, qint64 done, qint64 total);
    /// Erases the line, so that another one can be written.
    void clear();

private:
    void write(const QString &line);

    bool isTerminal_;
    QString shown_;
    std::chrono::steady_clock::time_point last_;
};

} // namespace printdialog
