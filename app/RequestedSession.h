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
/// named, else the user's default queue, else the built-in printer. Panels are not loaded yet. Blocks while
/// the print server is asked, for a few seconds at most.
RequestedSessionResult openRequestedPrinter(const CommandLine &commandLine);

/// The same with its panels loaded and the options applied in their order, for a run without a window: a
/// plug-in that cannot be loaded is a failure, and so is any choice that does not become the job's.
RequestedSessionResult openRequestedSession(const CommandLine &commandLine);

} // namespace printdialog
