// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoThreads.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThreadPool>

namespace printdialog {

QThreadPool &photoThreads()
{
    static QThreadPool threads;
    // Tasks post their results to the application's event loop, so none may outlive it.
    static const bool areEnded = (qAddPostRoutine([] {
                                      threads.clear();
                                      threads.waitForDone();
                                  }),
                                  true);
    Q_UNUSED(areEnded)
    return threads;
}

} // namespace printdialog
