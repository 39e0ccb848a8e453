// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "FolderPrinter.h"

#include <QtCore/QObject>

namespace printdialog {

class Console;

/// Prints the photos that arrive in a folder, without a window. Main thread, which needs the application's
/// object and gets its event loop here.
class WatchRun : private QObject
{
    Q_OBJECT

public:
    /// Borrows both.
    WatchRun(const CommandLine &commandLine, Console &console);

    /// Watches until SIGINT or SIGTERM, which it ends well after. Writes a line for each photo that is
    /// printed, and complains about those that are not, and about what it waits for.
    int run();

private:
    Result<WatchOrder, std::monostate> order() const;
    QString whyNotFolder(const QString &folder, const QString &option) const;
    int fail(const QString &sentence);
    void stop();

    const CommandLine &commandLine_;
    Console &console_;
    FolderPrinter printer_;
    bool isStopping_ = false;
};

} // namespace printdialog
