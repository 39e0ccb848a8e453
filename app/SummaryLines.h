// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace printdialog {

/// What the panels say about a job: label and text, in the panels' order.
using SummaryEntries = QList<QPair<QString, QString>>;

/// "label: text", one for each entry.
QStringList summaryLines(const SummaryEntries &entries);

} // namespace printdialog
