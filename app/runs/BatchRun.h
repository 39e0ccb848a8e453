// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "CommandLine.h"
#include "InterruptFlag.h"
#include "PrintRun.h"
#include "ProgressLine.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

class Console;

/// Prints without a window. The photos, the printer and each choice are checked before anything is printed.
/// Main thread; blocks until the last sheet is printed, or a queue's jobs were followed up to the command
/// line's limit. When interrupted, it cancels the jobs it has sent and fails.
class BatchRun : private PrintRunListener
{
    Q_DECLARE_TR_FUNCTIONS(BatchRun)

public:
    /// Borrows both.
    BatchRun(const CommandLine &commandLine, Console &console);

    /// Prints, and writes a line for each printed sheet. Complains about each damaged photo, which is left
    /// out, and about the first other failure. A dry run shows instead what would be sent.
    int run();

private:
    void sending(qsizetype sheet, const QString &name, qint64 sent, qint64 total) override;
    void printed(const QString &sentence) override;
    void skipped(const QString &sentence) override;
    void following(qsizetype sheet, const QString &name, const QString &state) override;

    /// A sentence; nothing when one PDF of all sheets can be made, or is not wanted.
    static std::optional<QString> whyNotOnePdf(const PrintJob &job);
    int showPlan(const Arrangement &arrangement, const PrintJob &job, const QString &uri);
    int printAll(const Arrangement &arrangement, const PrintJob &job);
    int conclude(const PrintOutcome &outcome, bool isQueue);
    int endOf(int status) const;
    int fail(const QString &sentence);

    const CommandLine &commandLine_;
    Console &console_;
    InterruptFlag interrupt_;
    ProgressLine progress_;
    bool hasSkipped_ = false; ///< whether a damaged photo was not printed
};

} // namespace printdialog
