// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace printdialog {

/// Permanently removes from this process what a parser of hostile data does not need: much memory, much time,
/// writing, the network, other processes. Files can still be opened for reading, which the C library needs
/// for character sets. Forbidden calls fail with EPERM, so that a newer C library can fall back. False when
/// the system does not support this.
bool enterSandbox();

} // namespace printdialog
