// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

class DialogSession;

/// What lp(1) prints with on the session's printer, given an entry of an lpoptions file: the print server's
/// defaults, and the entry over them. Options and choices of the printer are in its own spelling, since CUPS
/// ignores the case; options of IPP are the choices that CUPS makes of them. The PPD's own defaults are not
/// named. What is neither stays as the entry names it.
QMap<QString, QString> choicesOfLp(const DialogSession &session, const QMap<QString, QString> &entry);

/// What lp(1) prints with without a preset: the queue's own entry counts, as far as the dialog has the
/// option.
QMap<QString, QString> printerDefaults(const DialogSession &session);

} // namespace printdialog
