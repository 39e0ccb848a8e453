// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

class QWidget;

namespace printdialog {

/// Tells once when the user first does something inside a window: a click, a key, a turn of the wheel. Keys
/// that only move through the window, or leave it, are not counted.
class TouchWatch : public QObject
{
    Q_OBJECT

public:
    /// @param window is its parent
    explicit TouchWatch(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void touched();

private:
    QWidget *window_;
};

} // namespace printdialog
