// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// The panels read the dialog's PPD record. CUPS has deprecated its PPD interface without a successor for a
// dialog that keeps a queue's PPD, so the warning is off in the sources that include this header, and nowhere
// else.
#include <cups/ppd.h>
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
