// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WindowPlacement.h"

#include "AtomicFiles.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
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
    const QFileInfo path(filePath());
    auto files = AtomicFiles::open(path.path());
    if (!files)
        return false;
    const auto device = files->add(path.fileName(), AtomicFiles::Access::OwnerOnly);
    return device && (*device)->write(geometry) == geometry.size() && files->commit();
}

} // namespace printdialog
