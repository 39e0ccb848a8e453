// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>

namespace printdialog {

/// The upper edge of a widget, with which the user makes it taller: by dragging it, or by the arrow keys.
class HeightGrip : public QWidget
{
    Q_OBJECT

public:
    explicit HeightGrip(QWidget *resized, QWidget *parent = nullptr);

Q_SIGNALS:
    void heightWanted(int height);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *resized_;
    double pressedAt_ = 0; ///< on the screen
    int heightAtPress_ = 0;
};

} // namespace printdialog
