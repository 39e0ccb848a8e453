// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PortalsText.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// The files in which xdg-desktop-portal, from 1.17 on, reads which portal serves what: see portals.conf(5).
/// It reads one of them alone, the first that it finds: a user's file hides those of the system.
class PortalsFiles
{
public:
    struct File
    {
        QString path;
        PortalsText text;
    };

    /// The files of this process's environment. Reads nothing but the environment.
    PortalsFiles();

    /// Whether it is known which desktop this is. Without it, which file is read is not known either.
    bool isDesktopKnown() const { return !desktops_.isEmpty(); }
    /// The user's file that is read, if there is one. It may have a wrong line, unlike the system's.
    std::optional<File> ofUser() const;
    /// The file that is read if `hidden` is not there.
    std::optional<File> inForce(const QString &hidden = {}) const;
    /// Where the user's copy of that file belongs, so that it is read on this desktop and changes no other.
    QString copyOf(const std::optional<File> &file) const;

private:
    std::optional<File> firstIn(const QString &folder, const QString &hidden) const;

    QStringList desktops_; ///< in lower case
    QString userFolder_;
    QStringList systemFolders_;
};

} // namespace printdialog
