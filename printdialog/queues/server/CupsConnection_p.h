// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cups/cups.h>

namespace printdialog {

/// A callback for libcups that never has a password.
const char *noPassword(const char *, http_t *, const char *, const char *, void *);

} // namespace printdialog
