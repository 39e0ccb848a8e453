// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "QueueFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

class CupsConnection;

/// The properties of a queue that are needed before it is used.
struct QueueRecord
{
    Destination destination;
    QByteArray uri; ///< The queue's own, as the server sends it.
    QString stateMessage;
    QStringList stateReasons; ///< Keywords.
    bool acceptsJobs = false;
    bool isStopped = false;
    /// The time of the last change of the queue's settings, including its PPD, by the server's clock. Set
    /// only when a further change could not have the same time, and never for a class, whose PPD is a
    /// member's.
    std::optional<int> unchangedSince;
    /// What the printer behind the queue wants of each job: "username", "password" and "domain", in the order
    /// in which it wants them; or "none", or "negotiate".
    QStringList authInfoRequired;
};

/// Requests a queue's record from the server. A name that no queue can have is NotFound. Failures: NotFound,
/// Refused, TimedOut, Failed.
Result<QueueRecord, QueueFault> queueRecord(CupsConnection &connection, const Destination &destination);

/// Whether a queue can have this name: plainText() does not change it, and CUPS allows its length.
bool isQueueName(const QString &name);

} // namespace printdialog
