// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ParentWindow.h"

#include "WaylandParent.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

namespace printdialog {

namespace {

/// What is behind the prefix, if the platform is the one that it is for.
QString handleIn(const QString &identifier, const char *prefix, const char *platform)
{
    const QString begin = QLatin1String(prefix);
    return identifier.startsWith(begin) && QGuiApplication::platformName().startsWith(QLatin1String(platform))
               ? identifier.sliced(begin.size())
               : QString();
}

void setX11Parent(QWidget *window, const QString &handle)
{
    constexpr int hexadecimal = 16;
    const uint number = handle.toUInt(nullptr, hexadecimal);
    if (number == 0)
        return;
    window->winId(); // makes the window
    QWindow *parent = QWindow::fromWinId(number);
    QObject::connect(window, &QObject::destroyed, parent, &QObject::deleteLater);
    window->windowHandle()->setTransientParent(parent);
}

} // namespace

void showWithParent(QWidget *window, const QString &identifier)
{
    setX11Parent(window, handleIn(identifier, "x11:", "xcb"));
    window->show();
    if (const QString handle = handleIn(identifier, "wayland:", "wayland"); !handle.isEmpty())
        setWaylandParent(window, handle);
}

} // namespace printdialog
