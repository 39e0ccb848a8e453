// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"

class QApplication;

namespace printdialog {

/// Renders the dialog with each of its pages to FOLDER/<suffix of the panel's kind>.png, the summary to
/// FOLDER/summary.png. Returns the exit status.
int runScreenshot(const CommandLine &commandLine, QApplication &application);

} // namespace printdialog
