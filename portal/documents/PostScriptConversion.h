// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentIntake.h"

namespace printdialog {

/// Has Ghostscript convert PostScript into a PDF, in a process without network whose time and memory are
/// limited (-dSAFER keeps it from files). Blocks: for a worker. Nothing on success; faults: NoConverter,
/// Unconverted, TooLarge, Canceled.
std::optional<IntakeFault> convertPostScript(const pdekit::FileDescriptor &postScript,
                                             const pdekit::FileDescriptor &pdf, const IntakeLimits &limits,
                                             const std::atomic<bool> *isCanceled);

} // namespace printdialog
