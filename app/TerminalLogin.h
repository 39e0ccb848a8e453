// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Logins.h"

namespace printdialog {

/// Has names and passwords (Logins) asked on the terminal that the program was started from, whatever its
/// standard streams are. Without a terminal nobody is asked.
void askLoginsOnTerminal();
/// Whether somebody can be asked there.
bool canAskOnTerminal();
/// Asks there for the password of a document. Nothing without a terminal, and when the user gives up.
/// @param isRefused the last one was wrong
std::optional<QString> askPasswordOnTerminal(const QString &document, bool isRefused);

} // namespace printdialog
