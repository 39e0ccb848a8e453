// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

namespace printdialog {

/// What a keyword of printer-state-reasons or job-state-reasons says, in the user's language, without a final
/// stop: "out of paper" for media-empty-error. The keyword itself where it is none of the registered ones
/// (RFC 8011, PWG 5100); nothing for those that only repeat the state. Plain text.
QString reasonText(const QString &keyword);

/// The reasons in words, each once, separated by commas; empty when there is nothing to say.
QString reasonsText(const QStringList &keywords);

/// "ready", "printing", "stopped", "rejects jobs" or "unknown".
QString stateWord(const Queue &queue);

/// The state with its reasons, or else with the server's own words: "stopped: out of paper".
QString stateText(const Queue &queue);

/// "Ribbon 62 %, Paper unknown"; empty when the server knows of no supplies.
QString suppliesText(const Queue &queue);

} // namespace printdialog
