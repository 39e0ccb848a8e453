// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <QtCore/QList>

#include <optional>

namespace printdialog {

/// What the user and the system's manager keep about destinations beside the server: in the lpoptions files
/// (lpoptions(1)) and the environment. Only the names: the options in there are not for this program.
struct UserDestinations
{
    QList<Destination> instances;              ///< In the files' order.
    std::optional<Destination> defaultPrinter; ///< The user's default, else this machine's.

    /// Reads the small files; no print server is asked.
    static UserDestinations read();
};

} // namespace printdialog
