// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QSet>
#include <QtWidgets/QWidget>

class QAbstractButton;

namespace pdekit {

/// A radio group as one control. Its cells are the buttons that are its children; each has the number of its
/// choice in the dynamic property `cellTag`, so that a search for a view's tag never finds a cell.
class PDEKIT_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT

public:
    explicit RadioMatrix(QWidget *parent = nullptr);

    QList<QAbstractButton *> cells() const;
    /// Null when no cell is selected.
    QAbstractButton *selectedCell() const;
    /// Selects the cell; when no cell has the tag, returns false and leaves the selection unchanged.
    bool selectCellWithTag(int cellTag);

    QString toolTipForCell(const QAbstractButton *cell) const;
    void setToolTipForCell(const QString &toolTip, QAbstractButton *cell);

    /// The cell's `cellTag`; 0 when it has none or is null.
    static int cellTag(const QAbstractButton *cell);

Q_SIGNALS:
    /// The user has selected a cell.
    void cellClicked();
    /// Another cell is selected, by the user (then after cellClicked) or a program.
    void selectionChanged();

protected:
    void childEvent(QChildEvent *event) override;

private:
    void connectCell(QAbstractButton *cell);

    QSet<const QObject *> connectedCells_;
};

} // namespace pdekit
