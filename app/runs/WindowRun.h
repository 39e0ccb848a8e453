// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "PrintDialog.h"

class QApplication;

namespace printdialog {

/// The setup of a window for the command line. Its photos are opened up to the first one that can be; the
/// window opens the others.
PrintDialogSetup windowSetup(const CommandLine &commandLine);

/// Shows the dialog until the user closes it. Returns the exit status.
int runWindow(const CommandLine &commandLine, QApplication &application);

} // namespace printdialog
