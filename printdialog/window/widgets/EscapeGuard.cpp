// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "EscapeGuard.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

namespace printdialog {

EscapeGuard::EscapeGuard(QWidget *window)
    : QObject(window)
    , window_(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool EscapeGuard::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || key->key() != Qt::Key_Escape)
        return false;
    const bool hasPopup = QApplication::activePopupWidget() != nullptr;
    if (type == QEvent::ShortcutOverride)
        wentToPopup_ |= hasPopup; // the window is asked, too, and by then the popup is already closed
    else if (type == QEvent::KeyRelease && !key->isAutoRepeat())
        wentToPopup_ = false;
    return type == QEvent::KeyPress && wentToPopup_ && !hasPopup &&
           (widget == window_ || window_->isAncestorOf(widget));
}

} // namespace printdialog
