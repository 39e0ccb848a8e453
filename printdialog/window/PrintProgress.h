// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>

class QProgressBar;

namespace printdialog {

class LimitedText;

/// The progress of printing. Hidden while nothing is being printed.
class PrintProgress : public QWidget
{
    Q_OBJECT

public:
    explicit PrintProgress(QWidget *parent = nullptr);

    /// @param text the current activity; may contain text from a server
    /// @param total 0: unknown
    void show(const QString &text, qint64 done = 0, qint64 total = 0);

    QString text() const;

private:
    LimitedText *text_;
    QProgressBar *bar_;
};

} // namespace printdialog
