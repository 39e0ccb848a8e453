// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "InterruptFlag.h"

#include <atomic>

namespace printdialog {

namespace {

int raised = 0; // accessed through atomic_ref

void raise(int /*signal*/)
{
    std::atomic_ref(raised).store(1);
}

} // namespace

InterruptFlag::InterruptFlag()
{
    static_assert(std::atomic_ref<int>::is_always_lock_free, "a signal handler may not take a lock");
    std::atomic_ref(raised).store(0);
    struct sigaction action = {};
    action.sa_handler = raise;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &interruptBefore_);
    sigaction(SIGTERM, &action, &terminateBefore_);
}

InterruptFlag::~InterruptFlag()
{
    sigaction(SIGINT, &interruptBefore_, nullptr);
    sigaction(SIGTERM, &terminateBefore_, nullptr);
}

int *InterruptFlag::flag() const
{
    return &raised;
}

bool InterruptFlag::isRaised() const
{
    return std::atomic_ref(raised).load() != 0;
}

} // namespace printdialog
