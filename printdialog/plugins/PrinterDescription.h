// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <QtCore/QString>

namespace printdialog {

/// The printer that a session is for.
struct PrinterDescription
{
    Destination destination;
    QString text;      ///< the name shown to people
    QString deviceUri; ///< empty when it is not known
    bool isBuiltIn = false;
    bool isRaw = false;       ///< has nothing to choose: a job is the photo's own file
    QString uri = {};         ///< the queue's address at its print server; empty for the built-in printer
    bool isAnnounced = false; ///< see Queue
};

/// Who owns the choices: the dialog or its panels.
enum class PanelMode {
    Constraint, ///< the dialog owns the marks and rules on each choice
    Settings,   ///< the panels keep their choices in the job ticket, and the dialog checks it before printing
};

} // namespace printdialog
