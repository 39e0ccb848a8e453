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

/// What has to be known of a queue before it is used.
struct QueueRecord
{
    Destination destination;
    QByteArray uri; ///< The queue's own, as the server gives it.
    QString stateMessage;
    QStringList stateReasons; ///< Keywords.
    bool acceptsJobs = false;
    bool isStopped = false;
    /// Since when its settings, and its PPD among them, are as they are, by the server's clock. Only when
    /// another change could not bear the same time, and never of a class, whose PPD is that of a member.
    std::optional<int> unchangedSince;
};

/// Asks the server about a queue. A name that no queue can have is not cleaned, but not found. Failures:
/// NotFound, Refused, TimedOut, Failed.
Result<QueueRecord, QueueFault> queueRecord(CupsConnection &connection, const Destination &destination);

/// Whether a queue can have this name: text that is not changed by being shown, and no longer than CUPS
/// allows.
bool isQueueName(const QString &name);

} // namespace printdialog
