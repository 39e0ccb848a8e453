// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"

namespace printdialog {

class Console;

/// Has the desktop's print portal use this dialog for the user's programs, or stop doing so: one key of the
/// portals.conf that is in force, which is copied to the user's folder where it is the system's. Says what
/// was done in which file, or complains, and returns the exit status. Blocks for seconds at most.
int switchPortal(PortalUse use, Console &console);

} // namespace printdialog
