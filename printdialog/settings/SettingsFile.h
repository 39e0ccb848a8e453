// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>

#include <functional>

namespace printdialog {

/// A small file of the user, replaced atomically, so that it always holds the complete old or new content.
/// Only the user can read a new file; an existing one keeps its permissions, and a symbolic link stays one.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::SettingsFile)

public:
    /// The content; empty when there is no such file. Failures: NotReadable.
    static Result<QByteArray, SettingsFault> read(const QString &path);

    /// Replaces the file's content, and creates a missing folder, readable only by the user. Returns nothing,
    /// or why that failed.
    static std::optional<QString> replace(const QString &path, const QByteArray &content);

    /// Returns the file's new content, or why it stays unchanged.
    using Change = std::function<Result<QByteArray, SettingsFault>(const QByteArray &before)>;
    /// Reads the file, calls `change` and replaces the content under a lock, so that no dialog overwrites
    /// another's change. Waits for the lock at most a second. Creates a missing folder, readable only by the
    /// user. Failures: NotReadable, NotWritable, Busy, and those of `change`.
    static SettingsFailure change(const QString &path, const Change &change);
};

} // namespace printdialog
