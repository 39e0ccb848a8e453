// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "DialogSession.h"
#include "InterruptFlag.h"
#include "PhotoPrinter.h"
#include "ProgressLine.h"
#include "SentJobs.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

class Console;
class PhotoList;
struct OutputFolder;
struct PrintJob;

/// Printing without a window. Everything is looked at before anything is printed: the photos, the printer,
/// each choice. Main thread; blocks until the last photo is printed, or a queue's jobs have been followed as
/// long as the command line has it. Interrupted, it cancels what it has sent and fails.
class BatchRun
{
    Q_DECLARE_TR_FUNCTIONS(BatchRun)

public:
    /// Both are borrowed.
    BatchRun(const CommandLine &commandLine, Console &console);

    /// Prints, writes a line for each printed photo, complains about each that is damaged, which is left out,
    /// and about the first other thing that went wrong. A dry run shows what would be sent instead.
    int run();

private:
    int fail(const QString &sentence);
    bool leaveOut(const Failure<PhotoPrinter::Fault> &failure);
    int endOf(int status) const;
    int failAfterDone(const QString &sentence);
    int showPlan(PhotoList &photos, const PrinterDescription &printer, const PrintJob &job);
    int printAll(PhotoList &photos, const PrinterDescription &printer, const PrintJob &job);
    OutputFolder outputFolder() const;
    int followAll(const SentJobs &jobs);
    int takeBack(const SentJobs &jobs);

    const CommandLine &commandLine_;
    Console &console_;
    InterruptFlag interrupt_;
    ProgressLine progress_;
    QStringList done_;        ///< the names of the photos that were printed or sent
    bool hasLeftOut_ = false; ///< whether a damaged photo was not printed
};

} // namespace printdialog
