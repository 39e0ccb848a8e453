// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TouchWatch.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace printdialog {

namespace {

bool isTouch(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::Wheel:
    case QEvent::Drop:
        return true;
    case QEvent::KeyPress:
        switch (static_cast<const QKeyEvent &>(event).key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Escape:
        case Qt::Key_F1:
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
            return false;
        default:
            return true;
        }
    default:
        return false;
    }
}

} // namespace

TouchWatch::TouchWatch(QWidget *window)
    : QObject(window)
    , window_(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool TouchWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (!isTouch(*event))
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (widget && (widget == window_ || window_->isAncestorOf(widget))) {
        QCoreApplication::instance()->removeEventFilter(this);
        Q_EMIT touched();
    }
    return false;
}

} // namespace printdialog
