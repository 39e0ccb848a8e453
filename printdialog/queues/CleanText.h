// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

/// The longest text of a server or a PPD that is shown, in UTF-16 units.
constexpr qsizetype shownTextLimit = 300;

/// Text from outside (a server, a PPD, a file's name) made fit to be shown as plain text: line breaks and
/// tabs become spaces, other control characters and the marks that change the writing direction are dropped,
/// runs of spaces become one, and what is longer than limit ends in an ellipsis.
QString cleanText(const QString &text, qsizetype limit = shownTextLimit);

/// Whether text holds a control character or a line separator. Such text never goes to a print server: the
/// scheduler keeps options line by line, and a line break in a value is read again as an entry of its own
/// (CVE-2026-34980).
bool hasControls(const QString &text);

} // namespace printdialog
