// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "PrintDialog.h"

class QApplication;

namespace printdialog {

/// The setup of a window for the command line: its photos opened. The failure's text names the photo.
Result<PrintDialogSetup, PhotoFault> windowSetup(const CommandLine &commandLine);

/// Shows the dialog until the user closes it; the exit status.
int runWindow(const CommandLine &commandLine, QApplication &application);

} // namespace printdialog
