// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <optional>

class QUrl;

namespace printdialog {

/// Whether the name may come from bytes that are not UTF-8. Qt decodes each of them as U+FFFD, so that the
/// text leads back to no file.
bool isForeignName(const QString &path);
/// Says for people that a file or folder has such a name.
QString foreignNameText(const QString &path);
/// The file on this computer that a URL of the scheme "file" names (RFC 8089); nothing for any other one.
std::optional<QString> fileOfUrl(const QUrl &url);

} // namespace printdialog
