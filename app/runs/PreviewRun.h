// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"

namespace printdialog {

class Console;

/// Saves a picture of each photo's page as the window's preview shows it, and writes a line for each:
/// FILE.png for the first photo, and for a further one FILE-2.png and so on, its number among all photos. The
/// longer side has 1200 pixels. A photo that cannot be shown costs a complaint and its picture; any other
/// failure ends the run. Each file is written as a whole or not at all. Nothing is written when a choice is
/// refused or any file is there already, unless earlier files are to be replaced; a photo of the run never
/// is.
///
/// Main thread; has one photo in memory at a time. Returns the exit status.
int savePreviews(const CommandLine &commandLine, Console &console);

} // namespace printdialog
