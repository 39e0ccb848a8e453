// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <vector>

namespace printdialog {

/// What a parser of hostile data keeps. A value.
struct SandboxRights
{
    std::uint64_t memory;            ///< The most address space, in bytes.
    unsigned processorTime;          ///< The most, in seconds; SIGXCPU comes then.
    bool canOpenFiles = false;       ///< For reading.
    std::vector<int> writable = {};  ///< Open descriptors that can be written to.
    std::uint64_t largestOutput = 0; ///< The size that a file can grow to by that, in bytes.
};

/// Permanently removes from this process everything but these rights, memory and the reading of descriptors
/// that are open: no network, no other processes, no threads. Forbidden calls fail with EPERM, so that a
/// newer C library can fall back. False when the system does not support this.
bool enterSandbox(const SandboxRights &rights);

} // namespace printdialog
