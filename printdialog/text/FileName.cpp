// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FileName.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QUrl>

namespace printdialog {

bool isForeignName(const QString &path)
{
    return path.contains(QChar(QChar::ReplacementCharacter));
}

QString foreignNameText(const QString &path)
{
    return QCoreApplication::translate("printdialog::FileName",
                                       "\"%1\" cannot be used: its name is not encoded in UTF-8. Rename it.")
        .arg(plainText(path));
}

std::optional<QString> fileOfUrl(const QUrl &url)
{
    const bool isHere = url.host().isEmpty() || url.host() == QLatin1String("localhost");
    if (!url.isLocalFile() || !isHere || url.path().isEmpty())
        return std::nullopt;
    // QUrl would leave bytes that are not UTF-8 percent-encoded, which is another file's name.
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    if (bytes.contains('\0')) // the system would end the name there
        return std::nullopt;
    return QFile::decodeName(bytes);
}

} // namespace printdialog
