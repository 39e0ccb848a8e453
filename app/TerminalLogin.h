// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Logins.h"

namespace printdialog {

/// Has names and passwords (Logins) asked on the terminal that the program was started from, whatever its
/// standard streams are. Without a terminal nobody is asked.
void askLoginsOnTerminal();

} // namespace printdialog
