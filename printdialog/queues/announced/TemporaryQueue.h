// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QueueRecord.h"

#include <chrono>

namespace printdialog {

/// A queue that the print server makes for a printer on the network, and removes a minute after its last job.
struct TemporaryQueue
{
    QueueRecord record;
    QByteArray ppd; ///< Untrusted, unparsed.
};

/// Requests the temporary queue of an announced printer, which the server makes if it does not have one, and
/// waits for its PPD: the server asks the printer first. Blocks, at most for the limit, which begins anew
/// here. Failures: Absent when the printer does not answer, else all of QueueFault but NoPpd.
/// @param deviceUri the printer's, with a host that the server can find
Result<TemporaryQueue, QueueFault> temporaryQueue(CupsConnection &connection, const Destination &destination,
                                                  const QString &deviceUri, std::chrono::milliseconds limit);

/// The failure of a printer that announced itself and does not answer.
Failure<QueueFault> absentPrinter(const QString &id, std::chrono::milliseconds limit);

} // namespace printdialog
