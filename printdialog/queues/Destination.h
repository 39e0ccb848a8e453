// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

/// Where a job goes: a queue of the print server, a printer by its address, or the built-in printer, with an
/// optional instance (lpoptions(1)), which is a preset. A plain value; the queue need not exist.
struct Destination
{
    Destination() = default;
    /// @param id "queue" or "queue/instance", as in settings and on the command line; or a printer's address,
    /// see isAddress()
    Destination(const QString &id);
    Destination(const QString &queueName, const QString &instanceName);

    QString queue;
    QString instance; ///< Mostly empty.

    /// Whether the name is the address of a printer that is asked directly, "ipp://..." or "ipps://...". It
    /// may be malformed, see PrinterAddress. It has no instances.
    bool isAddress() const;
    /// Its identifier everywhere: "queue" or "queue/instance".
    QString id() const;
    /// Whether the name is that of the built-in printer, which needs no server.
    bool isBuiltIn() const;

    static Destination builtIn();

    friend bool operator==(const Destination &, const Destination &) = default;
};

} // namespace printdialog
