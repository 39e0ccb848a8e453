// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtWidgets/QTreeWidget>

namespace printdialog {

/// The job in words: a line for each entry of the panels' summaries.
class SummaryPage : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    void setEntries(const QList<QPair<QString, QString>> &entries);
};

} // namespace printdialog
