// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

namespace printdialog {

/// The meaning of a keyword of printer-state-reasons or job-state-reasons in the user's language, without a
/// final full stop: "out of paper" for media-empty-error. The keyword itself if it is not a registered one
/// (RFC 8011, PWG 5100); empty for those that only repeat the state. Plain text.
QString reasonText(const QString &keyword);

/// The reasons in words, without duplicates, separated by commas; may be empty.
QString reasonsText(const QStringList &keywords);

/// "ready", "printing", "stopped", "rejects jobs", "found on the network" (no queue yet) or "unknown".
QString stateWord(const Queue &queue);

/// The state with its reasons, or else with the server's message: "stopped: out of paper".
QString stateText(const Queue &queue);

/// "Ribbon 62 %, Paper unknown"; empty when the server knows no supplies.
QString suppliesText(const Queue &queue);

} // namespace printdialog
