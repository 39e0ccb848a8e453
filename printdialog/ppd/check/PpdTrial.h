// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace printdialog {

/// Exercises libcups with a PPD as the dialog does: opens and localizes it, marks the defaults and, for each
/// option, another choice, gets the conflicts and, for a second of processor time, resolves them. Returns if
/// libcups survives, whatever its results. Closes the descriptor.
void tryPpd(int descriptor);

} // namespace printdialog
