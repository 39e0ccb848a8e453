// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>

#include <functional>

namespace printdialog {

/// A small file of the user's: read whole, and changed whole or not at all, so that it holds the old content
/// or the new one whatever happens. Nobody else can read a new one; one that was there keeps its permissions,
/// and a link stays one.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::SettingsFile)

public:
    /// The content; empty when there is no such file. Failures: NotReadable.
    static Result<QByteArray, SettingsFault> read(const QString &path);

    /// Puts the content in the file's place, and makes the folder, private too. Nothing, or why the file has
    /// not its new content.
    static std::optional<QString> replace(const QString &path, const QByteArray &content);

    /// What is to be in the file instead of what is there, or why it stays.
    using Change = std::function<Result<QByteArray, SettingsFault>(const QByteArray &before)>;
    /// Reads the file, asks for the change, and puts it in place, while no other dialog does the same: none
    /// loses what another one writes. Waits for others no longer than a second. Makes the folder, private
    /// too. Failures: NotReadable, NotWritable, Busy, and those of the change.
    static SettingsFailure change(const QString &path, const Change &change);
};

} // namespace printdialog
