// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

namespace printdialog {

/// Why a queue could not be used.
enum class QueueFault {
    NotFound,     ///< The server has no queue of this name.
    NoServer,     ///< Nothing listens at the print server's address.
    NoPpd,        ///< The queue has no PPD (a raw queue, or a class of them).
    NotAccepting, ///< The queue rejects jobs.
    Refused,      ///< Not allowed by the server, or not fit to be sent.
    TimedOut,     ///< The server was silent or slow for too long.
    Changed,      ///< The queue's PPD has changed since the options were chosen.
    Absent,       ///< The printer announces itself on the network, and does not answer.
    Unknown,      ///< The job was sent; the server may have it, or not.
    Canceled,     ///< Canceled by the caller.
    Failed        ///< Anything else; the server's own words say what.
};

/// The failure with its sentence: the queue by its name, the reason, the remedy.
/// @param queue the queue's id; empty for a failure of the server itself (NoServer, TimedOut, Refused,
/// Failed)
/// @param words the server's own message, or another reason; untrusted, cleaned here; may be empty
Failure<QueueFault> queueFailure(QueueFault fault, const QString &queue, const QString &words = {});

} // namespace printdialog
