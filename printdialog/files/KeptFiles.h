// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <utility>

namespace printdialog {

/// Files that a run never replaces, whichever of their names is used.
class KeptFiles
{
public:
    /// Those that exist now. A symbolic link is kept as well as the file that it leads to.
    explicit KeptFiles(const QStringList &paths);

    /// What has a path's name already. A link to a file is not that file: replacing it leaves the file alone.
    enum class Earlier {
        None, ///< nothing, or nothing that can be examined: writing to the path reports the reason
        Other,
        Kept,
    };
    Earlier at(const QString &path) const;

private:
    using Identity = std::pair<quint64, quint64>; ///< device and inode

    QSet<Identity> identities_;
};

} // namespace printdialog
