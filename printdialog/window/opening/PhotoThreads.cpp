// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoThreads.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThreadPool>

#include <unistd.h>
#include <utility>

namespace printdialog {

namespace {

/// Qt's priorities of threads change nothing under Linux's usual scheduling, and its nice values are a
/// thread's own.
void giveWay()
{
    constexpr int nicer = 10;
    thread_local const int value = ::nice(nicer);
    Q_UNUSED(value)
}

} // namespace

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

void startPhotoTask(std::function<void()> task, PhotoPriority priority)
{
    photoThreads().start(
        [task = std::move(task)] {
            giveWay();
            task();
        },
        priority);
}

} // namespace printdialog
