// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "DialogSession.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

class Console;
class PhotoList;
struct PrintJob;

/// Printing without a window. Everything is looked at before anything is printed: the photos, the printer,
/// each choice. Main thread; blocks until the last photo is printed.
class BatchRun
{
    Q_DECLARE_TR_FUNCTIONS(BatchRun)

public:
    /// Both are borrowed.
    BatchRun(const CommandLine &commandLine, Console &console);

    /// Prints, writes a line for each printed photo and complains about the first thing that went wrong.
    int run();

private:
    int fail(const QString &sentence);
    int printAll(PhotoList &photos, const DialogSession &session, const PrintJob &job);

    const CommandLine &commandLine_;
    Console &console_;
};

} // namespace printdialog
