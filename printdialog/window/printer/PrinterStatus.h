// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

#include <QtWidgets/QLabel>

namespace printdialog {

/// The print server's report on a queue: its state with the reasons in words, its supplies, the members of a
/// class. Hidden for the built-in printer, which has none of these.
class PrinterStatus : public QLabel
{
    Q_OBJECT

public:
    explicit PrinterStatus(QWidget *parent = nullptr);

    void show(const Queue &queue);
    /// Shows a queue that the server has not reported yet.
    void showUnconfirmed();
};

} // namespace printdialog
