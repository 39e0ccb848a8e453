// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PipeSignalBlock.h"

#include <cerrno>

namespace printdialog {

namespace {

sigset_t pipeSignal()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

bool isPending()
{
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGPIPE) == 1;
}

} // namespace

PipeSignalBlock::PipeSignalBlock()
    : wasPending_(isPending())
{
    const sigset_t set = pipeSignal();
    pthread_sigmask(SIG_BLOCK, &set, &before_);
}

PipeSignalBlock::~PipeSignalBlock()
{
    const sigset_t set = pipeSignal();
    const timespec atOnce = {};
    while (!wasPending_ && isPending() && (sigtimedwait(&set, nullptr, &atOnce) != -1 || errno == EINTR)) {
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

} // namespace printdialog
