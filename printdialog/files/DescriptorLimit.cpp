// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DescriptorLimit.h"

#include <algorithm>
#include <sys/resource.h>

namespace printdialog {

void raiseDescriptorLimit()
{
    // Enough for the largest job. More would slow down those children that close all possible descriptors.
    constexpr rlim_t enough = 32'768;
    rlimit limit = {};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= enough)
        return;
    limit.rlim_cur = std::min(limit.rlim_max, enough);
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace printdialog
