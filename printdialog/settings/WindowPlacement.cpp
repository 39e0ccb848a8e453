// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WindowPlacement.h"

#include "SettingsFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace printdialog {

namespace {

constexpr qint64 largestPlacement = 1024;

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
    return file.read(largestPlacement);
}

bool WindowPlacement::save(const QByteArray &geometry)
{
    return !SettingsFile::replace(filePath(), geometry);
}

} // namespace printdialog
