// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QuietFeedback.h"

#include "SystemLog.h"

namespace printdialog {

void QuietFeedback::beep()
{
}

void QuietFeedback::alert(const pdekit::Alert &alert)
{
    pdekit::systemLog(alert.message);
}

bool QuietFeedback::openHelpBook(const pdekit::Bundle & /*bundle*/, const QString & /*name*/)
{
    return false;
}

} // namespace printdialog
