// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace printdialog {

/// Does with a PPD what the dialog does with libcups: opens and localizes it, marks the defaults, and for
/// each option another choice, and asks for conflicts and, for a second of processor time, for ways out of
/// them. Returns when libcups survives that, whatever it thinks of the PPD. Closes the descriptor.
void tryPpd(int descriptor);

} // namespace printdialog
