// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// What the user and the system's manager keep about destinations beside the server: in the lpoptions files
/// (lpoptions(1)) and the environment. Only the names: the options in there are not for this program.
struct UserDestinations
{
    QStringList instances;                 ///< "name/instance", in the files' order.
    std::optional<QString> defaultPrinter; ///< The id of the user's default, else of this machine's.

    /// Reads the small files; no print server is asked.
    static UserDestinations read();
};

} // namespace printdialog
