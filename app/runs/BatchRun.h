// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "InterruptFlag.h"
#include "PrintRun.h"
#include "ProgressLine.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

class Console;
class PhotoList;

/// Printing without a window. Everything is looked at before anything is printed: the photos, the printer,
/// each choice. Main thread; blocks until the last photo is printed, or a queue's jobs have been followed as
/// long as the command line has it. Interrupted, it cancels what it has sent and fails.
class BatchRun : private PrintRunListener
{
    Q_DECLARE_TR_FUNCTIONS(BatchRun)

public:
    /// Both are borrowed.
    BatchRun(const CommandLine &commandLine, Console &console);

    /// Prints, writes a line for each printed photo, complains about each that is damaged, which is left out,
    /// and about the first other thing that went wrong. A dry run shows what would be sent instead.
    int run();

private:
    void sending(qsizetype photo, const QString &name, qint64 sent, qint64 total) override;
    void printed(const QString &sentence) override;
    void skipped(const QString &sentence) override;
    void following(qsizetype photo, const QString &name, const QString &state) override;

    int showPlan(PhotoList &photos, const PrintJob &job, const QString &uri);
    int printAll(PhotoList &photos, const PrintJob &job);
    int conclude(const PrintOutcome &outcome, bool isQueue);
    PlacedPhoto placed(Photo photo) const;
    int endOf(int status) const;
    int fail(const QString &sentence);

    const CommandLine &commandLine_;
    Console &console_;
    InterruptFlag interrupt_;
    ProgressLine progress_;
    bool hasSkipped_ = false; ///< whether a damaged photo was not printed
};

} // namespace printdialog
