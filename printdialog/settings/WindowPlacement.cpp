// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WindowPlacement.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>

namespace printdialog {

namespace {

constexpr qint64 largestFile = 1024;

QString filePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/corvel-print/window");
}

} // namespace

QByteArray WindowPlacement::load()
{
    QFile file(filePath());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(largestFile);
}

bool WindowPlacement::save(const QByteArray &geometry)
{
    QDir().mkpath(QFileInfo(filePath()).path());
    QSaveFile file(filePath());
    return file.open(QIODevice::WriteOnly) && file.write(geometry) == geometry.size() && file.commit();
}

} // namespace printdialog
