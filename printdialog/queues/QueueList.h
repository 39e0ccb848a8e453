// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"
#include "QueueFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <chrono>
#include <optional>

namespace printdialog {

/// The queues of the print server with the user's instances of them, in the server's order. The built-in
/// printer is not among them. Blocks, at most for the limit. Failures: NoServer, Refused, TimedOut, Failed.
Result<QList<Queue>, QueueFault> listQueues(std::chrono::milliseconds limit);

/// The same, on the calling thread. For a worker: the look-up of a server's name may hold it longer than the
/// limit.
/// @param cancel non-zero once it shall give up; may be null
Result<QList<Queue>, QueueFault> sweepQueues(std::chrono::milliseconds limit, int *cancel);

/// One queue and what its options come from.
struct OpenedQueue
{
    Queue queue;
    bool hasPpd = false; ///< A raw queue, or a class of them, has none.
    QByteArray ppd;      ///< Untrusted, unparsed.
};

/// Asks for one queue and its PPD without listing the others. Of an instance nothing is asked: it is the
/// user's own. Blocks, at most for the limit. Failures: those
/// of QueueFault but NoPpd.
Result<OpenedQueue, QueueFault> queueNamed(const Destination &destination, std::chrono::milliseconds limit);

/// Whether a failure of one of these says that this machine prints nowhere: its print server is one of its
/// own, on CUPS' usual port or socket, and nobody listens there. Any other server that cannot be asked may
/// have the user's printer. Reads the configuration of CUPS.
bool isWithoutPrintServer(const Failure<QueueFault> &failure);

/// Where the print server of this process is asked: a socket's path, or "host:port". Reads the configuration
/// of CUPS.
QString printServerAddress();

/// The default among queues: what the user set (LPDEST, PRINTER, lpoptions), or else the server's. Nothing
/// when there is none, or when it names a queue that is not there.
std::optional<Destination> defaultQueue(const QList<Queue> &queues);

} // namespace printdialog
