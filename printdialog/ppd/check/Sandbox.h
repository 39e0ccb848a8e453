// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace printdialog {

/// Takes from this process, for good, what a reader of hostile data has no use for: much memory, much time,
/// writing, the network, other processes. Files can still be opened for reading, which the C library does
/// for a character set. What is not allowed fails with EPERM, so that a C library that asks for something
/// new goes on without it. False when the system does not offer that.
bool enterSandbox();

} // namespace printdialog
