// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QLayout>

#include <memory>
#include <vector>

namespace printdialog {

/// A row that wraps to further lines when it is too narrow for its items. The room left on a line goes to its
/// expanding items, or else stays free before the first one. Without margins.
class WrappingRow : public QLayout
{
    Q_OBJECT

public:
    /// @param parent the widget that is laid out; null for a row within another layout
    explicit WrappingRow(QWidget *parent = nullptr);
    ~WrappingRow() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    using Line = QList<QLayoutItem *>;

    int gap() const;
    QList<Line> linesFor(int width) const;
    int heightOf(const Line &line, int width) const;
    QList<int> widthsOf(const Line &line, int width) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace printdialog
