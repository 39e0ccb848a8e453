// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppAttributes.h"
#include "Queue.h"
#include "QueueFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <chrono>
#include <optional>

namespace printdialog {

/// The queues of the print server with the user's instances of them, in the server's order, without the
/// built-in printer. Blocks, at most for the limit. Failures: NoServer, Refused, TimedOut, Failed.
Result<QList<Queue>, QueueFault> listQueues(std::chrono::milliseconds limit);

/// The same, on the calling thread. For a worker: the look-up of a server's name may block it longer than the
/// limit.
/// @param cancel non-zero: give up; may be null
Result<QList<Queue>, QueueFault> sweepQueues(std::chrono::milliseconds limit, int *cancel);

/// The queues, each followed by the user's instances of it (UserDestinations).
QList<Queue> withInstances(const QList<Queue> &queues, const QList<Destination> &instances);

/// A queue and what can be chosen for it.
struct OpenedQueue
{
    Queue queue;
    bool hasPpd = false;      ///< A raw queue, or a class of them, has none.
    QByteArray ppd;           ///< Untrusted, unparsed.
    IppAttributes attributes; ///< Empty when the server has none.
};

/// Requests one queue, its PPD and its attributes without listing the others. An instance is not checked,
/// since it exists only on this side. Blocks, at most for the limit, and as long again for attributes where
/// there is no PPD. A printer's address stands for a queue with this name, without a PPD. Failures: all of
/// QueueFault but NoPpd.
/// @param announcedUri the device URI of an announced printer, whose queue is made if there is none
Result<OpenedQueue, QueueFault> queueNamed(const Destination &destination, std::chrono::milliseconds limit,
                                           const QString &announcedUri = {});

/// Whether a failure of one of these means that this machine has no print server: the configured one is
/// local, on CUPS' usual port or socket, and nothing listens there. Any other server that cannot be reached
/// may have the user's printer. Reads the configuration of CUPS.
bool isWithoutPrintServer(const Failure<QueueFault> &failure);

/// The address of this process's print server: a socket's path, or "host:port". Reads the configuration of
/// CUPS.
QString printServerAddress();

/// Whether the print server is this computer's own: a socket's path, or the usual port here. Another port may
/// be a tunnel. Reads the configuration of CUPS.
bool isPrintServerHere();

/// The default among queues: the user's (LPDEST, PRINTER, lpoptions), or else the server's. Nothing when
/// there is none, or when it names a queue that does not exist.
std::optional<Destination> defaultQueue(const QList<Queue> &queues);

} // namespace printdialog
