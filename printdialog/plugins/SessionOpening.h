// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DialogSession.h"
#include "IppAttributes.h"
#include "PpdCheck.h"
#include "Queue.h"

namespace printdialog {

using SessionResult = Result<std::unique_ptr<DialogSession>, PpdFault>;

/// Opens a session for the built-in printer, with its own PPD or the one in the file. Panels are not loaded
/// yet.
SessionResult openBuiltInPrinter(const std::optional<QString> &ppdFile, PanelMode mode);

/// Opens a session for a queue with its PPD. Panels are not loaded yet.
SessionResult openQueue(const Queue &queue, const CheckedPpd &ppd, PanelMode mode,
                        const IppAttributes &attributes = {});

/// Opens a session for a queue or a printer without a PPD, by its attributes. It has no panels. If they do
/// not say what it can print on, opens it as a raw queue.
SessionResult openWithoutPpd(const Queue &queue, const IppAttributes &attributes, PanelMode mode);

/// Opens a session for a queue without a PPD. It has no options but those of the job, no panels, and one page
/// size, which stands for the one set at the printer.
SessionResult openRawQueue(const Queue &queue, PanelMode mode, const IppAttributes &attributes = {});

} // namespace printdialog
