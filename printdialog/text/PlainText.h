// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <limits>

namespace printdialog {

/// The longest text of a PPD, a server or a file name inside a sentence, in UTF-16 units.
inline constexpr qsizetype shownTextLimit = 300;

/// Makes text from outside (a PPD, a server, a file name, a command line) safe to show or to use as a file
/// name. Tabs and line breaks become spaces. Other control characters, characters that change the writing
/// direction, and unpaired surrogates are dropped. Text longer than `limit` UTF-16 units is cut and ends with
/// an ellipsis.
QString plainText(const QString &untrusted, qsizetype limit = std::numeric_limits<qsizetype>::max());

/// Whether the text has a control character or a line separator. Such text is never sent to a print server:
/// the scheduler stores options line by line, and would read a line break in a value as a new entry
/// (CVE-2026-34980).
bool hasControls(const QString &text);

} // namespace printdialog
