// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <limits>

namespace printdialog {

/// The longest text of a PPD, a server or a file's name that a sentence holds, in UTF-16 units.
inline constexpr qsizetype shownTextLimit = 300;

/// Text from outside (a PPD, a server, a file's name, a command line) made fit to be shown or to name a file:
/// tabs and line breaks become spaces; other control characters, the characters that turn the direction of
/// writing, and halves of surrogate pairs are dropped. What is longer than
/// `limit` UTF-16 units ends in an ellipsis.
QString plainText(const QString &untrusted, qsizetype limit = std::numeric_limits<qsizetype>::max());

/// Whether the text holds a control character or a line separator. Such text never goes to a print server:
/// the scheduler keeps options line by line, and a line break in a value is read again as an entry of its own
/// (CVE-2026-34980).
bool hasControls(const QString &text);

} // namespace printdialog
