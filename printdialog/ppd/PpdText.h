// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

/// The text as it may be shown: plain, without control characters, line breaks and characters that turn the
/// writing direction, at most `limit` UTF-16 units with an ellipsis at the end when it was cut.
/// Everything that comes from a PPD, a file name or a command line goes through here before a person sees it.
QString plainPpdText(const QString &text, qsizetype limit = 200);

} // namespace printdialog
