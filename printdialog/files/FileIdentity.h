// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHashFunctions>

#include <cstddef>

namespace printdialog {

/// Which file it is, and in which state: it differs when another file has taken its name, and when a program
/// has written to it. A value.
struct FileIdentity
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;     ///< In bytes.
    qint64 modified = 0; ///< In nanoseconds since 1970.

    bool operator==(const FileIdentity &) const = default;
};

inline std::size_t qHash(const FileIdentity &identity, std::size_t seed = 0)
{
    return qHashMulti(seed, identity.device, identity.inode, identity.size, identity.modified);
}

} // namespace printdialog
