// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QSet>
#include <QtWidgets/QWidget>

class QAbstractButton;

namespace pdekit {

/// A radio group as one control. Its cells are the buttons that are its children; each carries the number of
/// the choice it stands for in the dynamic property `cellTag`, so that no search for a view's tag ever finds
/// a cell.
class PDEKIT_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT

public:
    explicit RadioMatrix(QWidget *parent = nullptr);

    QList<QAbstractButton *> cells() const;
    /// Null when no cell is selected.
    QAbstractButton *selectedCell() const;
    /// Selects the cell; when no cell has the tag, the selection stays as it is and the answer is false.
    bool selectCellWithTag(int cellTag);

    QString toolTipForCell(const QAbstractButton *cell) const;
    void setToolTipForCell(const QString &toolTip, QAbstractButton *cell);

    /// 0 when the cell carries none, or is null.
    static int cellTag(const QAbstractButton *cell);

Q_SIGNALS:
    /// The user has picked a cell.
    void cellClicked();
    /// Another cell is selected, whoever has selected it; after cellClicked when it was the user.
    void selectionChanged();

protected:
    void childEvent(QChildEvent *event) override;

private:
    void connectCell(QAbstractButton *cell);

    QSet<const QObject *> connectedCells_;
};

} // namespace pdekit
