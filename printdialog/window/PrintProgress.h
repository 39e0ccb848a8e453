// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace printdialog {

/// How far printing is, with a button that stops it. Hidden while nothing is printed.
class PrintProgress : public QWidget
{
    Q_OBJECT

public:
    explicit PrintProgress(QWidget *parent = nullptr);

    /// @param text what is being done; may hold text from a server
    /// @param total 0: how long it takes is not known
    void show(const QString &text, qint64 done = 0, qint64 total = 0);

    QString text() const;

Q_SIGNALS:
    void stopped();

private:
    QLabel *text_;
    QProgressBar *bar_;
    QPushButton *stop_;
};

} // namespace printdialog
