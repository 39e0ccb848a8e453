// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

#include <QtCore/QByteArray>

#include <optional>

namespace printdialog {

/// The printer that was last used, remembered so that a window opens with it before any server has answered.
/// What stands in here may be out of date: nothing is printed by it.
struct RememberedQueue
{
    Queue queue;            ///< What identifies and describes it; its state is not kept.
    QByteArray ppd;         ///< Empty for a queue without one, and for the built-in printer.
    bool wasChosen = false; ///< By the user; otherwise it was the default.
};

/// Where it is remembered: one file for each print server, that nobody but the user can read, in the user's
/// cache folder (XDG_CACHE_HOME). A file that is broken, or that others can write to, is as good as none.
class QueueCache
{
public:
    static std::optional<RememberedQueue> load();
    /// Takes the place of what was remembered. What cannot be kept is not: the window then just opens later.
    static void save(const RememberedQueue &remembered);
    /// The file for the print server of this process (CUPS_SERVER, or the system's own).
    static QString file();
};

} // namespace printdialog
