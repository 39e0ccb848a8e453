// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DroppedFiles.h"

#include "FileName.h"

#include <QtCore/QMimeData>
#include <QtCore/QUrl>

namespace printdialog {

QStringList droppedFiles(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        // QUrl's own text leaves what is not UTF-8 in its per-cent form, which is another file's name.
        if (url.isLocalFile() && url.host().isEmpty())
            paths.append(
                fileNameFromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())));
    }
    return paths;
}

} // namespace printdialog
