// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

/// Where a job goes: a queue of the print server or the built-in printer, with the user's instance of it
/// (lpoptions(1)), which is a preset. A plain value; nothing says that there is such a queue.
struct Destination
{
    Destination() = default;
    /// @param id "queue" or "queue/instance", as settings, the command line and the user have it
    Destination(const QString &id);
    Destination(const QString &queueName, const QString &instanceName);

    QString queue;
    QString instance; ///< Mostly empty.

    /// What it is called everywhere: "queue", or "queue/instance".
    QString id() const;
    /// Whether the queue is by its name the printer that needs no server.
    bool isBuiltIn() const;

    static Destination builtIn();

    friend bool operator==(const Destination &, const Destination &) = default;
};

} // namespace printdialog
