// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SummaryPage.h"

#include <QtWidgets/QHeaderView>

namespace printdialog {

SummaryPage::SummaryPage(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderLabels({tr("Option"), tr("Choice")});
    setAccessibleName(tr("Summary of the job"));
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setFrameShape(QFrame::NoFrame);
    header()->setSectionsMovable(false);
}

void SummaryPage::setEntries(const QList<QPair<QString, QString>> &entries)
{
    clear();
    for (const auto &[option, choice] : entries)
        new QTreeWidgetItem(this, {option, choice});
    resizeColumnToContents(0);
}

} // namespace printdialog
