// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>

struct stat;

namespace printdialog {

/// What a folder's file system can be relied on for.
struct FolderKind
{
    /// inotify(7) reports every change. Not on a network's file systems, where others make changes.
    bool reportsChanges = true;
    /// A file keeps its inode's number when the file system is mounted again. Not on FAT, for example.
    bool keepsInodes = true;

    /// That of a folder; the default one when it cannot be found out. May block on a dead mount.
    static FolderKind of(const QByteArray &folder);
};

/// What makes a file in a folder the same photo as before, also after the program or the computer was started
/// again. The device's number is not a part of it: it changes from one mount to the next. A file whose
/// content or time changes is another photo.
struct PhotoIdentity
{
    qint64 inode = 0;    ///< 0 where inodes are not kept
    qint64 size = 0;     ///< in bytes
    qint64 modified = 0; ///< in nanoseconds since 1970
    QByteArray name;     ///< as the file system has it; empty where inodes are kept

    static PhotoIdentity of(const struct stat &status, const QByteArray &name, const FolderKind &kind);

    friend bool operator==(const PhotoIdentity &, const PhotoIdentity &) = default;
};

size_t qHash(const PhotoIdentity &identity, size_t seed = 0);

/// A file in a watched folder.
struct FolderFile
{
    QByteArray name; ///< as the file system has it, without a folder
    PhotoIdentity identity;
};

} // namespace printdialog
