// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

class QUrl;

namespace printdialog {

/// The name of a file is bytes, and they need not be text. As a string, each byte that is no part of UTF-8 is
/// an unpaired surrogate, from U+DC80 to U+DCFF, so that the name leads back to the same file. plainText()
/// shows such a byte as U+FFFD.
QString fileNameFromBytes(const QByteArray &bytes);
/// The other way round. Of a string that holds none of these surrogates it is the UTF-8.
QByteArray bytesOfFileName(const QString &name);
/// The file on this computer that a URL of the scheme "file" names (RFC 8089); nothing for any other one.
std::optional<QString> fileOfUrl(const QUrl &url);

} // namespace printdialog
