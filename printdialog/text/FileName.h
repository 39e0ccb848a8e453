// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <optional>

class QUrl;

namespace printdialog {

/// Whether the name may come from bytes that are not UTF-8. Qt decodes each such byte to U+FFFD, so the file
/// cannot be opened by the decoded name.
bool isForeignName(const QString &path);
/// A sentence for people: a file or folder has such a name.
QString foreignNameText(const QString &path);
/// The local file that a "file" URL names (RFC 8089); nothing for any other URL.
std::optional<QString> fileOfUrl(const QUrl &url);

} // namespace printdialog
