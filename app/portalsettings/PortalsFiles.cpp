// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalsFiles.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace printdialog {

namespace {

const QString portalsFileName = QStringLiteral("portals.conf");

/// Names that are no file's name cannot be looked for.
QStringList currentDesktops()
{
    QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(u':', Qt::SkipEmptyParts);
    desktops.removeIf([](const QString &desktop) { return desktop.contains(u'/'); });
    return desktops;
}

} // namespace

PortalsFiles::PortalsFiles()
    : desktops_(currentDesktops())
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    userFolder_ = folders.takeFirst();
    folders.append(QStringLiteral("/etc"));
    folders += QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    folders.append(QStringLiteral("/usr/share"));
    const QString inFolder = QStringLiteral("/xdg-desktop-portal/");
    userFolder_ += inFolder;
    for (const QString &folder : std::as_const(folders))
        systemFolders_.append(folder + inFolder);
}

std::optional<PortalsFiles::File> PortalsFiles::firstIn(const QString &folder, const QString &hidden) const
{
    QStringList names;
    for (const QString &desktop : desktops_)
        names.append(desktop + u'-' + portalsFileName);
    names.append(portalsFileName);
    for (const QString &name : std::as_const(names)) {
        QFile file(folder + name);
        if (file.fileName() == hidden || !QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
            continue;
        constexpr qsizetype largest = 1024 * 1024;
        return File{file.fileName(), PortalsText(file.read(largest))};
    }
    return std::nullopt;
}

std::optional<PortalsFiles::File> PortalsFiles::ofUser() const
{
    return firstIn(userFolder_, {});
}

std::optional<PortalsFiles::File> PortalsFiles::inForce(const QString &hidden) const
{
    for (const QString &folder : QStringList(userFolder_) + systemFolders_) {
        if (auto file = firstIn(folder, hidden); file && file->text.wrongLine() == 0)
            return file;
    }
    return std::nullopt;
}

QString PortalsFiles::copyOf(const std::optional<File> &file) const
{
    const QString name = file ? QFileInfo(file->path).fileName() : portalsFileName;
    return userFolder_ + (name == portalsFileName ? desktops_.constFirst() + u'-' + portalsFileName : name);
}

} // namespace printdialog
