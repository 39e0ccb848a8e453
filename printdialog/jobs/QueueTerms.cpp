// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueTerms.h"

#include "PpdDocument.h"
#include "PpdFilters.h"

namespace printdialog {

QueueTerms QueueTerms::ofPpd(const PpdDocument &ppd)
{
    return {true, ppd.data(), typesTakenAsTheyAre(ppd)};
}

} // namespace printdialog
