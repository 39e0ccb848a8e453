// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"
#include "QueueFault.h"

#include <QtCore/QList>

#include <chrono>
#include <optional>

namespace printdialog {

/// The queues of the print server with the user's instances of them, in the server's order. The built-in
/// printer is not among them. Blocks, at most for the limit; empty when there is no server, or when it does
/// not answer in time.
QList<Queue> listQueues(std::chrono::milliseconds limit);

/// The same, on the calling thread and with the reason when there are none. For a worker: a server that falls
/// silent in the middle may hold it longer than the limit.
/// @param cancel non-zero once it shall give up; may be null
Result<QList<Queue>, QueueFault> sweepQueues(std::chrono::milliseconds limit, int *cancel);

/// The id of the default among queues: what the user set (LPDEST, PRINTER, lpoptions), or else the server's.
/// Nothing when there is none, or when it names a queue that is not there.
std::optional<QString> defaultQueue(const QList<Queue> &queues);

} // namespace printdialog
