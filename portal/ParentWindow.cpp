// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ParentWindow.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

namespace printdialog {

void setParentWindow(QWidget *window, const QString &identifier)
{
    const QString prefix = QStringLiteral("x11:");
    constexpr int hexadecimal = 16;
    bool isNumber = false;
    const uint number =
        identifier.startsWith(prefix) ? identifier.sliced(prefix.size()).toUInt(&isNumber, hexadecimal) : 0;
    if (!isNumber || number == 0 || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    window->winId(); // makes the window
    QWindow *parent = QWindow::fromWinId(number);
    QObject::connect(window, &QObject::destroyed, parent, &QObject::deleteLater);
    window->windowHandle()->setTransientParent(parent);
}

} // namespace printdialog
