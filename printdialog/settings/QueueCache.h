// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

#include <QtCore/QByteArray>

#include <optional>

namespace printdialog {

/// The printer used last, stored so that a window can open with it before a server has answered. The data may
/// be out of date: nothing is printed by them.
struct RememberedQueue
{
    Queue queue;            ///< Its identity and description; the state is not stored.
    QByteArray ppd;         ///< Empty for a queue without one, and for the built-in printer.
    bool wasChosen = false; ///< By the user; else it was the default.
};

/// Stores it in one file per print server in the user's cache folder (XDG_CACHE_HOME), readable only by the
/// user. A file that is broken, or that others can write to, is ignored.
class QueueCache
{
public:
    static std::optional<RememberedQueue> load();
    /// Replaces the stored printer. Failures are ignored: the next window then just opens later.
    static void save(const RememberedQueue &remembered);
    /// The file for the print server of this process (CUPS_SERVER, or the system's own).
    static QString file();
};

} // namespace printdialog
