// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace printdialog {

/// The folders in which this system keeps ICC profiles of screens and papers, and what they hold. Whoever
/// names a profile may be a stranger: nothing outside these folders is opened, and what is not a regular file
/// of at most 4 MiB with a profile of a screen or a printer counts as missing. Any thread.
class ProfileFolders
{
public:
    static constexpr qsizetype largest = 4 << 20; ///< bytes of a profile

    /// The profile with this file name in one of the system's folders, or up to two folders below; the first
    /// one found. Of a path, only the last component is used. Empty when there is none.
    static QByteArray find(const QString &name);
    /// The profile at this absolute path, which must be below one of the system's folders, or of the user's
    /// own. Empty when there is none.
    static QByteArray read(const QString &path);

    /// Whether it is the profile of a screen or a printer.
    static bool isUsable(const QByteArray &icc);
};

} // namespace printdialog
