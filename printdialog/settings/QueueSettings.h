// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// The choices last used with each printer, or saved for it: one small JSON file for each, in the user's
/// configuration folder (the desktop's base directories, XDG_CONFIG_HOME).
class QueueSettings
{
public:
    /// Option keyword to choice keyword, as last saved for the printer; empty when there is nothing of use.
    /// Whether the printer still has these choices is for its PPD to say.
    static QMap<QString, QString> load(const QString &printer);
    /// Keeps the choices in the place of those saved before. The old ones stay whole when this fails.
    static SettingsFailure save(const QString &printer, const QMap<QString, QString> &options);

    /// The file for the printer, whatever characters its name has.
    static QString fileFor(const QString &printer);
};

} // namespace printdialog
