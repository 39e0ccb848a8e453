// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <functional>

namespace pdekit {

using LogSink = std::function<void(const QString &line)>;

/// Writes one plain line to the system log: to syslog(3), and to standard error when that is a terminal or
/// the environment variable PDEKIT_LOG_STDERR is set. Control characters except tabs and line feeds are
/// replaced. A line feed at the end of `line` is part of the line. Main thread only.
PDEKIT_EXPORT void systemLog(const QString &line);

/// Replaces the system log by `sink`, and returns the previous sink (empty: the system log itself).
PDEKIT_EXPORT LogSink setSystemLogSink(LogSink sink);

} // namespace pdekit
