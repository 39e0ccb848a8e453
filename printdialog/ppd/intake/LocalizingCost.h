// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CupsPpd.h"

namespace printdialog {

/// Whether ppdLocalize() takes less than about a tenth of a second on the record. To find the translation of
/// one choice, libcups searches all translations of the option.
bool canBeLocalized(const ppd_file_t &record);

} // namespace printdialog
