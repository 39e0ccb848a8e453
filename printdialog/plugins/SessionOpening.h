// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DialogSession.h"
#include "Queue.h"

namespace printdialog {

using SessionResult = Result<std::unique_ptr<DialogSession>, PpdFault>;

/// A session for the built-in printer, with its own PPD or the one in the file. Panels are not loaded yet.
SessionResult openBuiltInPrinter(const std::optional<QString> &ppdFile, PanelMode mode);

/// A session for a queue with its PPD. Panels are not loaded yet.
SessionResult openQueue(const Queue &queue, const CheckedPpd &ppd, PanelMode mode);

/// A session for a queue without a PPD: it has no options and no panels, and one page size, which stands for
/// whatever is set at the printer.
SessionResult openRawQueue(const Queue &queue, PanelMode mode);

} // namespace printdialog
