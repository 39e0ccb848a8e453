// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// The choices last used with each printer, or saved for it: one small JSON file per printer in the user's
/// configuration folder (XDG_CONFIG_HOME).
class QueueSettings
{
public:
    /// Option keyword to choice keyword, as last saved for the printer; empty when there is no usable file.
    /// The printer's PPD may no longer have these choices.
    static QMap<QString, QString> load(const QString &printer);
    /// Replaces the saved choices. The old ones are unchanged when this fails.
    static SettingsFailure save(const QString &printer, const QMap<QString, QString> &options);

    /// The file for the printer; any characters in its name are allowed.
    static QString fileFor(const QString &printer);
};

} // namespace printdialog
