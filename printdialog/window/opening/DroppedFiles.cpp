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
        if (const auto path = fileOfUrl(url))
            paths.append(*path);
    }
    return paths;
}

} // namespace printdialog
