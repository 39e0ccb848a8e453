// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdInspection.h"

namespace printdialog {

/// The PPD in a regular file, at most PpdLimits::bytes of it; expanded when it is compressed by gzip, as
/// those that CUPS brings with it are. Refuses everything else without blocking on it.
Result<QByteArray, PpdFault> readPpdFile(const QString &path);

/// A descriptor at the start of a nameless file in memory that holds the bytes; the caller closes it. -1 with
/// errno when the system has none to give.
int ppdInMemory(const QByteArray &bytes);

/// The failure for a PPD that the system does not hand out, with the reason of `error` (an errno).
Failure<PpdFault> ppdNotReadable(const QString &name, int error);

} // namespace printdialog
