// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

class QWidget;

namespace printdialog {

/// Reports once, when the user first does something inside a window: a click, a key, a turn of the wheel.
/// Keys that only move the focus or leave the window do not count.
class TouchWatch : public QObject
{
    Q_OBJECT

public:
    /// @param window becomes the parent of this object
    explicit TouchWatch(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void touched();

private:
    QWidget *window_;
};

} // namespace printdialog
