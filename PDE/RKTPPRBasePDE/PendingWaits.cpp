// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PendingWaits.h"

void PendingWaits::push(int passes)
{
    if (!runs_.empty() && runs_.back().passes == passes)
        ++runs_.back().count;
    else
        runs_.push_back({passes, 1});
    if (passes == 0)
        ++begun_;
}

int PendingWaits::pop()
{
    const int passes = runs_.back().passes;
    if (--runs_.back().count == 0)
        runs_.pop_back();
    return passes;
}

bool PendingWaits::endPass()
{
    const int passes = pop() + 1;
    if (passes >= mostPasses)
        return true;
    push(passes);
    return false;
}
