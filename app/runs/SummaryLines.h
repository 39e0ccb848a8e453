// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobSummary.h"

#include <QtCore/QStringList>

namespace printdialog {

/// One line per entry: "label: text".
QStringList summaryLines(const SummaryEntries &entries);

} // namespace printdialog
