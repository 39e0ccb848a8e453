// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Libqpdf.h"

namespace printdialog {

/// Takes over which layers of a document are printed (PDF 1.7, 8.11): without that, hidden ones would be.
/// Those of several documents stand side by side.
void addOptionalContent(QPDF &from, QPDF &to);

} // namespace printdialog
