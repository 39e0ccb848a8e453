// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementStyle.h"
#include "CommandLine.h"
#include "DialogSession.h"
#include "PrintJob.h"

#include <memory>
#include <variant>

namespace printdialog {

class Console;

/// A session with the choices of the command line.
struct RequestedSession
{
    std::unique_ptr<DialogSession> session;
    int copies = 1;              ///< as requested, or else the preset's
    ArrangementStyle style = {}; ///< the preset's
    /// A line about choices of the preset, and one about panels, that are missing here, and one for each
    /// panel that could not read the job's choices.
    QStringList leftOut = {};
};

/// Opens the printer of the command line: the built-in one by name or with --ppd, the named queue, else the
/// user's default (LPDEST, PRINTER, lpoptions), else the print server's, else the built-in printer. A default
/// that cannot be used is a failure, since the user expects prints and not files. So is a server that cannot
/// be reached, since it may have a default, except on a machine without one (isWithoutPrintServer()) if none
/// is named on the command line. Blocks for the print server's answers, for a few seconds at most.
///
/// The session has its panels, the choices of the preset that the printer's name names ("queue/preset"), as
/// lp(1) applies it, and then the options in their order. An installed plug-in that cannot be loaded is a
/// failure, and so is any option that is refused. A failure is a sentence: its reasons come from too many
/// parts (the print server, the PPD, the plug-in, a choice) for one useful enumeration.
Result<RequestedSession, std::monostate> openRequestedSession(const CommandLine &commandLine);

/// The job of its choices, which are checked together. Complains about what is left out. Any choice that
/// conflicts or is missing is a failure, since nobody can be asked: a sentence.
Result<PrintJob, std::monostate> jobOfRequested(const RequestedSession &requested, Console &console);

} // namespace printdialog
