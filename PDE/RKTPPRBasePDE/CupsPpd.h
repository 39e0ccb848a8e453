// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// The panels read the dialog's PPD record. CUPS deprecates its PPD interface without offering another way to
// read a queue's PPD, so the warning is disabled in the sources that include this header, and nowhere else.
#include <cups/ppd.h>
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
