// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SummaryLines.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

QStringList summaryLines(const SummaryEntries &entries)
{
    QStringList lines;
    for (const auto &[label, text] : entries)
        lines.append(QCoreApplication::translate("SummaryLines", "%1: %2").arg(label, text));
    return lines;
}

} // namespace printdialog
