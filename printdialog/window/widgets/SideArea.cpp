// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SideArea.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QFocusEvent>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTabBar>

#include <algorithm>

namespace printdialog {

namespace {

constexpr QSize smallest(300, 110); // pixels; both sides and the widgets below them fit in 800 x 500
constexpr int focusMargin = 16;     // pixels around the widget that is brought into view

/// Whether a key or the program moved the focus. A click must not move the widget that it was aimed at.
bool isMoved(const QFocusEvent &event)
{
    switch (event.reason()) {
    case Qt::MouseFocusReason:
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
        return false;
    default:
        return true;
    }
}

/// Whether the wheel would change the widget's value.
bool isChangedByWheel(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QTabBar *>(widget) ||
           (qobject_cast<const QAbstractSlider *>(widget) && !qobject_cast<const QScrollBar *>(widget));
}

} // namespace

SideArea::SideArea(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    // On the application, since views are added and removed, and focus events do not pass through the
    // parents.
    QCoreApplication::instance()->installEventFilter(this);
}

void SideArea::setReadableWidth(int least, int most)
{
    leastWidth_ = least;
    mostWidth_ = most;
    updateGeometry();
}

int SideArea::scrollBarWidth() const
{
    return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

// Leaves room for the scroll bar, so that the contents keep their width when it appears.
QSize SideArea::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    const int character = fontMetrics().averageCharWidth();
    QSize size = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    size.setWidth(std::max(size.width() + scrollBarWidth(), leastWidth_ * character));
    if (mostWidth_ > 0)
        size.setWidth(std::min(size.width(), mostWidth_ * character));
    return size;
}

// Not wider than the contents need: on the smallest screens the other side needs the rest.
QSize SideArea::minimumSizeHint() const
{
    QSize size = smallest.boundedTo(sizeHint());
    if (widget())
        size.setWidth(std::min(size.width(), widget()->minimumSizeHint().width() + scrollBarWidth()));
    return size;
}

bool SideArea::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry(); // the contents' size hint has changed
    return QScrollArea::event(event);
}

bool SideArea::acceptsWheel(const QWidget *widget) const
{
    return verticalScrollBar()->maximum() > 0 && isChangedByWheel(widget) && this->widget() &&
           this->widget()->isAncestorOf(widget);
}

bool SideArea::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel) {
        const auto *over = qobject_cast<QWidget *>(watched);
        if (over && acceptsWheel(over)) {
            QCoreApplication::sendEvent(verticalScrollBar(), event);
            return true;
        }
    } else if (event->type() == QEvent::Show) {
        auto *shown = qobject_cast<QWidget *>(watched);
        // A widget that scrolls below the mouse does not get the focus either, or the next key would change
        // it.
        if (shown && shown->focusPolicy() == Qt::WheelFocus && widget() && widget()->isAncestorOf(shown))
            shown->setFocusPolicy(Qt::StrongFocus);
    } else if (event->type() == QEvent::FocusIn && isMoved(*static_cast<QFocusEvent *>(event))) {
        auto *focused = qobject_cast<QWidget *>(watched);
        if (focused && widget() && widget()->isAncestorOf(focused))
            ensureWidgetVisible(focused, focusMargin, focusMargin);
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace printdialog
