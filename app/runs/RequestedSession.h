// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "DialogSession.h"

#include <memory>
#include <variant>

namespace printdialog {

/// A session with the choices that the command line asks for.
struct RequestedSession
{
    std::unique_ptr<DialogSession> session;
    int copies = 1;      ///< as asked for, or else the preset's
    QStringList leftOut; ///< a line about choices of the preset, and one about panels, that there are not
                         ///< here, and one for each panel that could not read the job's choices
};

/// Opens the printer that the command line asks for: the built-in one by its name or with --ppd, the queue
/// named, else the user's default (LPDEST, PRINTER, lpoptions), else the print server's, else the built-in
/// printer. A default that cannot be used is a failure: nobody expects files instead of prints. So is a
/// server that cannot be asked, since it may have a default, but for a machine without any
/// (isWithoutPrintServer()) when none is named on the command line. Blocks while the print server is asked,
/// for a few seconds at most.
///
/// The session has its panels, the choices of the preset that the printer's name names ("queue/preset"), as
/// lp(1) prints it, and then the options in their order. A plug-in that is installed and cannot be loaded is
/// a failure, and so is any option that does not become the job's. A failure is a sentence: its reasons lie
/// in too many places (the print server, the PPD, the plug-in, a choice) for one enumeration to be of use.
Result<RequestedSession, std::monostate> openRequestedSession(const CommandLine &commandLine);

} // namespace printdialog
