// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "DialogSession.h"

#include <memory>
#include <variant>

namespace printdialog {

/// A session, or the sentence that says why there is none. Its reasons lie in too many places (the print
/// server, the PPD, the plug-in, a choice) for one enumeration to be of use.
using RequestedSessionResult = Result<std::unique_ptr<DialogSession>, std::monostate>;

/// Opens the printer that the command line asks for: the built-in one by its name or with --ppd, the queue
/// named, else the user's default (LPDEST, PRINTER, lpoptions), else the print server's, else the built-in
/// printer. A default that cannot be used is a failure: nobody expects files instead of prints. So is a
/// server that cannot be asked, since it may have a default, but for a machine without any
/// (isWithoutPrintServer()) when none is named on the command line. Panels are not loaded yet. Blocks while
/// the print server is asked, for a few seconds at most.
RequestedSessionResult openRequestedPrinter(const CommandLine &commandLine);

/// A session with the choices that the command line asks for.
struct RequestedJob
{
    std::unique_ptr<DialogSession> session;
    int copies = 1; ///< as asked for, or else the preset's
    QStringList
        leftOut; ///< a line about choices of the preset, and one about panels, that there are not here
};

/// The same with its panels loaded, for a run without a window: with the preset that the printer's name
/// names ("queue/preset"), as lp(1) prints it, and then the options in their order. A plug-in that is
/// installed and cannot be loaded is a failure, and so is any option that does not become the job's.
Result<RequestedJob, std::monostate> openRequestedJob(const CommandLine &commandLine);

} // namespace printdialog
