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

void SummaryPage::setEntries(const SummaryEntries &entries)
{
    while (topLevelItemCount() > entries.size())
        delete takeTopLevelItem(topLevelItemCount() - 1);
    for (int i = 0; i < entries.size(); ++i) {
        QTreeWidgetItem *item = i < topLevelItemCount() ? topLevelItem(i) : new QTreeWidgetItem(this);
        item->setText(0, entries.at(i).first);
        item->setText(1, entries.at(i).second);
    }
    resizeColumnToContents(0);
}

} // namespace printdialog
