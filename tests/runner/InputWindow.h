// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>
#include <qpa/qwindowsysteminterface.h>

/// A window that counts what reaches it.
class InputWindow : public QWidget
{
public:
    int paints = 0;
    int inputs = 0; ///< presses and releases of keys and of the mouse

    /// As the window system does it: the events wait in its queue.
    void sendInput()
    {
        using System = QWindowSystemInterface;
        const QPointF local(5, 5);
        const QPointF global = mapToGlobal(local);
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            System::handleMouseEvent<System::AsynchronousDelivery>(
                windowHandle(), local, global,
                type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type);
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            System::handleKeyEvent<System::AsynchronousDelivery>(windowHandle(), type, Qt::Key_A,
                                                                 Qt::NoModifier);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override { ++paints; }
    void mousePressEvent(QMouseEvent * /*event*/) override { ++inputs; }
    void mouseReleaseEvent(QMouseEvent * /*event*/) override { ++inputs; }
    void keyPressEvent(QKeyEvent * /*event*/) override { ++inputs; }
    void keyReleaseEvent(QKeyEvent * /*event*/) override { ++inputs; }
};
