// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintJob.h"
#include "Result.h"

#include <QtCore/QStringList>

namespace printdialog {

class DialogSession;

/// Why a session makes no job.
enum class SessionJobFault {
    Conflict, ///< Choices conflict, see DialogSession::jobRefusal().
    NoPaper,  ///< No paper size is chosen.
};

/// A job made from a session's choices.
struct SessionJob
{
    PrintJob job;
    QStringList
        remarks; ///< A sentence for each recorded choice that was left out because the PPD does not have it.
    QStringList missing; ///< See JobOptions.
};

/// Makes the panels save their choices, and makes a job of them. The window and the command line both use it,
/// so that they print alike. Main thread.
/// @param copies from 1 to mostCopies
Result<SessionJob, SessionJobFault> jobOf(DialogSession &session, int copies);

} // namespace printdialog
