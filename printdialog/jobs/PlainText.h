// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

/// Text from outside (a file name, a server's message) made fit for a message, a title or a file name:
/// without control characters, line and paragraph separators, the characters that turn the direction of the
/// text around, and halves of surrogate pairs. Everything else stays as it is.
QString plainText(const QString &untrusted);

} // namespace printdialog
