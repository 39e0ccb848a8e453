// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"

namespace printdialog {

class Console;

/// The runs that only show something, as text or as JSON. Each writes to the console, complains when it
/// fails, and returns the exit status. Main thread; they block while the print server is asked, for a few
/// seconds at most.

/// The built-in printer and the queues. Text: a line for each, its cells separated by tabs. JSON: an array of
/// objects with "name", "description", "location", "model", "state", "stateReasons" (keywords), "stateText"
/// (both in words), "acceptsJobs", "supplies" (objects with "name", "level" in percent or null, and "low"),
/// "members" (of a class), "uri", "default", "announced" (known by what it announces on the network) and
/// "builtIn". Printers on the network are looked for for less than a second. A print server that cannot be
/// reached is a failure, except on a machine without one (isWithoutPrintServer()) if neither a server nor a
/// default printer is named: it has the built-in printer.
int listPrinters(const CommandLine &commandLine, Console &console);

/// The options of the requested printer, after the choices of the command line. Text: a table. JSON: an array
/// of objects with "keyword", "text", "choice", "default" (null when there is none), "panel" (its name, or
/// null) and "choices" (objects with "keyword" and "text").
int listOptions(const CommandLine &commandLine, Console &console);

/// The job of the command line in words: see jobSummary. JSON: an object of label to text.
int showSummary(const CommandLine &commandLine, Console &console);

} // namespace printdialog
