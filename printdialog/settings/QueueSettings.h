// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// Why settings could not be kept.
enum class SettingsFault {
    NotWritable, ///< the folder cannot be made, or the file cannot be written or put in place
};

/// The choices that a user has saved for each printer: one small JSON file for each, in the user's
/// configuration folder (the desktop's base directories, XDG_CONFIG_HOME).
class QueueSettings
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::QueueSettings)

public:
    /// Option keyword to choice keyword, as last saved for the printer; empty when there is nothing of use.
    /// Whether the printer still has these choices is for its PPD to say.
    static QMap<QString, QString> load(const QString &printer);
    /// Keeps the choices in the place of those saved before. The old ones stay whole when this fails.
    static Result<QString, SettingsFault> save(const QString &printer, const QMap<QString, QString> &options);

    /// The file for the printer, whatever characters its name has.
    static QString fileFor(const QString &printer);
};

} // namespace printdialog
