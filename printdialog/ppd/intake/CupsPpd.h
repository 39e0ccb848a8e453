// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// The PPD interface of libcups, for printdialog/ppd only. CUPS deprecates it without offering another way to
// read a queue's options, so the warning is disabled here and nowhere else.
#include <cups/ppd.h>
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
