// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "GuardedApplication.h"

#include "ActionGuard.h"

namespace printdialog {

bool GuardedApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!pdekit::handleFailure(receiver))
            throw;
        return true;
    }
}

} // namespace printdialog
