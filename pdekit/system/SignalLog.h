// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <cstddef>

namespace pdekit {

/// Prepares systemLogFromSignal: makes a pipe, and its reader on the main thread's event loop. Call it on the
/// main thread before a handler that logs is installed; further calls do nothing. False: no pipe could be
/// created, and the handlers' lines are lost.
PDEKIT_EXPORT bool prepareSignalLog();

/// Logs one line from a signal handler: async-signal-safe (signal-safety(7)), preserves errno. The line
/// reaches the system log when the event loop next runs. At most 255 bytes; lost when thousands are already
/// waiting.
PDEKIT_EXPORT void systemLogFromSignal(const char *text, std::size_t length) noexcept;

} // namespace pdekit
