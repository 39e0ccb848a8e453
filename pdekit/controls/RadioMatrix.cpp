// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RadioMatrix.h"

#include "ControlAction.h"
#include "ControlValues.h"

#include <QtCore/QChildEvent>
#include <QtCore/QVariant>
#include <QtWidgets/QAbstractButton>

namespace pdekit {

RadioMatrix::RadioMatrix(QWidget *parent)
    : QWidget(parent)
{
}

QList<QAbstractButton *> RadioMatrix::cells() const
{
    return findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
}

QAbstractButton *RadioMatrix::selectedCell() const
{
    const QList<QAbstractButton *> all = cells();
    for (QAbstractButton *cell : all) {
        if (cell->isChecked())
            return cell;
    }
    return nullptr;
}

bool RadioMatrix::selectCellWithTag(int wanted)
{
    const QList<QAbstractButton *> all = cells();
    for (QAbstractButton *cell : all) {
        connectCell(cell);
        if (cell->property("cellTag").isValid() && cellTag(cell) == wanted)
            return setState(cell, 1);
    }
    return false;
}

QString RadioMatrix::toolTipForCell(const QAbstractButton *cell) const
{
    return cell->toolTip();
}

void RadioMatrix::setToolTipForCell(const QString &toolTip, QAbstractButton *cell)
{
    cell->setToolTip(toolTip);
}

int RadioMatrix::cellTag(const QAbstractButton *cell)
{
    return cell ? cell->property("cellTag").toInt() : 0;
}

void RadioMatrix::connectCell(QAbstractButton *cell)
{
    if (connectedCells_.contains(cell))
        return;
    connectedCells_.insert(cell);
    // In this order: receivers of selectionChanged see the result of the action.
    connectAction(cell, this, [this] { Q_EMIT cellClicked(); });
    connect(cell, &QAbstractButton::toggled, this, [this](bool on) {
        if (on)
            Q_EMIT selectionChanged();
    });
}

void RadioMatrix::childEvent(QChildEvent *event)
{
    // A child that is being added may not be a button yet; when it is polished, it is complete.
    if (event->polished()) {
        if (auto *cell = qobject_cast<QAbstractButton *>(event->child()))
            connectCell(cell);
    }
    QWidget::childEvent(event);
}

} // namespace pdekit
