// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdInspection.h"

namespace printdialog {

/// Reads the PPD in a regular file, at most PpdLimits::bytes; decompresses gzip, which CUPS uses for its own
/// PPDs. Refuses everything else without blocking on it.
Result<QByteArray, PpdFault> readPpdFile(const QString &path);

/// A descriptor at the start of an unnamed file in memory that holds the bytes; the caller closes it. -1 with
/// errno on failure.
int ppdInMemory(const QByteArray &bytes);

/// The failure for a PPD that cannot be read because of `error` (an errno).
Failure<PpdFault> ppdNotReadable(const QString &name, int error);

} // namespace printdialog
