// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

#include <QtWidgets/QLabel>

namespace printdialog {

/// What the print server says of a queue: its state with the reasons in words, its supplies, the members of a
/// class. Hidden for the built-in printer, which has none of it.
class PrinterStatus : public QLabel
{
    Q_OBJECT

public:
    explicit PrinterStatus(QWidget *parent = nullptr);

    void show(const Queue &queue);
    /// For a queue that the server has not told of yet.
    void showUnconfirmed();
};

} // namespace printdialog
