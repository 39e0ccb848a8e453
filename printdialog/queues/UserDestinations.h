// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <QtCore/QList>

#include <optional>

namespace printdialog {

/// The client-side settings of destinations, by the user and the administrator: the lpoptions files
/// (lpoptions(1)) and the environment. Only the names are read, not the options.
struct UserDestinations
{
    QList<Destination> instances;              ///< In the order of the files.
    std::optional<Destination> defaultPrinter; ///< The user's default, else this machine's.

    /// Reads the files, which are small; makes no request to a print server.
    static UserDestinations read();
};

} // namespace printdialog
