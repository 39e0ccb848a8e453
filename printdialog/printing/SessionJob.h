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
    Conflict, ///< Choices stand in each other's way, see DialogSession::jobRefusal().
    NoPaper,  ///< No paper size is chosen.
};

/// A job of the choices made in a session.
struct SessionJob
{
    PrintJob job;
    QStringList remarks; ///< A sentence for each recorded choice that is not the PPD's, and so left out.
    QStringList missing; ///< See JobOptions.
};

/// Has the panels save their choices, and makes the job of them: the one way, so that the window and the
/// command line print alike. Main thread.
/// @param copies from 1 to mostCopies
Result<SessionJob, SessionJobFault> jobOf(DialogSession &session, int copies);

} // namespace printdialog
