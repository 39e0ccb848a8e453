// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

class QComboBox;

namespace printdialog {

/// Lets the user find an item of a long list by typing any part of its words, which are in wordsRole. What is
/// typed only searches: it never becomes an item, and goes when the list is left.
class PrinterSearch : public QObject
{
    Q_OBJECT

public:
    static constexpr int wordsRole = Qt::UserRole + 1;

    /// @param list becomes editable; a parent, too
    explicit PrinterSearch(QComboBox *list);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void chooseFirst();
    void showCurrent();

    QComboBox *list_;
};

} // namespace printdialog
