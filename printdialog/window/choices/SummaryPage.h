// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobSummary.h"

#include <QtWidgets/QTreeWidget>

namespace printdialog {

/// The job in words: a line for each entry.
class SummaryPage : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    /// Replaces the entries; the current line stays current.
    void setEntries(const SummaryEntries &entries);
};

} // namespace printdialog
