// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceCallout.h"

#include "AlertRole.h"
#include "ElidingButton.h"
#include "MessageTint.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QShortcut>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

constexpr int tipHeight = 7;
constexpr int calloutPadding = 8;
constexpr int widest = 420;
constexpr QColor tint(200, 140, 20);

QRect inWindow(const QWidget *widget)
{
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

/// The innermost scroll area around the widget; null when there is none.
QScrollArea *scrollAreaOf(const QWidget *widget)
{
    QWidget *above = widget ? widget->parentWidget() : nullptr;
    while (above && !qobject_cast<QScrollArea *>(above))
        above = above->parentWidget();
    return static_cast<QScrollArea *>(above);
}

/// The visible part of the area that the widget scrolls in, in the window's coordinates.
QRect viewOf(const QWidget *widget, const QWidget *window)
{
    QRect view = window->rect();
    for (const QWidget *above = widget->parentWidget(); above != window; above = above->parentWidget()) {
        if (const auto *area = qobject_cast<const QScrollArea *>(above))
            view &= inWindow(area->viewport());
    }
    return view;
}

/// The visible part of the control; when it is scrolled out of sight, the edge of the view that it lies
/// behind.
QRect inView(const QRect &control, const QRect &view)
{
    if (control.bottom() < view.top())
        return {control.left(), view.top() - 1, control.width(), 1};
    if (control.top() > view.bottom())
        return {control.left(), view.bottom() + 1, control.width(), 1};
    return {control.left(), std::max(control.top(), view.top()), control.width(),
            std::min(control.bottom(), view.bottom()) - std::max(control.top(), view.top()) + 1};
}

} // namespace

ChoiceCallout::ChoiceCallout(QWidget *window)
    : QFrame(window)
    , text_(new QLabel(this))
    , offer_(new ElidingButton(this))
    , close_(new QToolButton(this))
{
    setObjectName(QStringLiteral("callout"));
    pdekit::setAlertRole(this);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    offer_->setObjectName(QStringLiteral("calloutOffer"));
    offer_->setAutoDefault(false);
    close_->setObjectName(QStringLiteral("calloutClose"));
    close_->setAutoRaise(true);
    close_->setFocusPolicy(Qt::TabFocus);
    close_->setIcon(style()->standardIcon(QStyle::SP_DockWidgetCloseButton, nullptr, this));
    close_->setToolTip(tr("Dismiss (Esc)"));
    close_->setAccessibleName(tr("Dismiss"));
    auto *layout = new QGridLayout(this);
    layout->setSpacing(calloutPadding);
    layout->setColumnStretch(0, 1);
    layout->addWidget(text_, 0, 0);
    layout->addWidget(close_, 0, 1, Qt::AlignTop);
    layout->addWidget(offer_, 1, 0, 1, 2, Qt::AlignLeft);
    connect(close_, &QToolButton::clicked, this, &ChoiceCallout::dismiss);
    connect(offer_, &QPushButton::clicked, this, &ChoiceCallout::offerAccepted);
    // A shortcut, so that it comes before the dialog's own use of Escape, which closes it.
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &ChoiceCallout::dismiss);
    hide();
}

void ChoiceCallout::show(QWidget *control, QWidget *area, const QString &text, const QString &offer)
{
    dismiss();
    join(control);
    area_ = area;
    text_->setText(text);
    setAccessibleName(text);
    offer_->setText(offer);
    offer_->setVisible(!offer.isEmpty());
    place();
    setVisible(true);
    raise();
    pdekit::announce(this);
}

// In the tab order, the callout comes after the control and before the control's former successor.
void ChoiceCallout::join(QWidget *control)
{
    control_ = control;
    QWidget *focused = window()->focusWidget();
    focused_ = control->isAncestorOf(focused) ? focused : control;
    // The control moves with each of its ancestors: scrolling moves a whole page.
    for (QWidget *above = control; above && above != parentWidget(); above = above->parentWidget()) {
        above->installEventFilter(this);
        watched_.append(above);
    }
    QWidget *last = control;
    for (QWidget *next = control->nextInFocusChain(); next != control; next = next->nextInFocusChain()) {
        if (control->isAncestorOf(next))
            last = next;
    }
    setTabOrder(last, offer_);
    setTabOrder(offer_, close_);
}

void ChoiceCallout::dismiss()
{
    if (isHidden())
        return;
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    setVisible(false);
    text_->clear();
    for (const QPointer<QWidget> &watched : std::exchange(watched_, {})) {
        if (watched)
            watched->removeEventFilter(this);
    }
    if (focused_ && hadFocus)
        focused_->setFocus(Qt::OtherFocusReason);
    control_.clear();
    area_.clear();
}

QString ChoiceCallout::text() const
{
    return isHidden() ? QString() : text_->text();
}

void ChoiceCallout::place()
{
    const QRect window = parentWidget()->rect();
    const QRect view = viewOf(control_, parentWidget());
    const QRect control = inView(inWindow(control_), view);
    const QRect area = inWindow(area_) & view;
    const int width = std::min(area.isEmpty() ? view.width() : area.width(), widest);
    const auto sizeFor = [&](bool below) {
        layout()->setContentsMargins(calloutPadding + 2, calloutPadding + (below ? tipHeight : 0),
                                     calloutPadding, calloutPadding + (below ? 0 : tipHeight));
        return std::max(layout()->totalHeightForWidth(width), layout()->totalMinimumSize().height());
    };
    const int height = sizeFor(true);
    // Without room in the page, the callout still stands beside the control and covers other widgets.
    QRect room = window;
    isBelow_ = window.bottom() - control.bottom() > control.top();
    for (const QRect &each : {area, view, window}) {
        const bool isRoomBelow = control.bottom() + height <= each.bottom();
        if (isRoomBelow || control.top() - height >= each.top()) {
            room = each;
            isBelow_ = isRoomBelow;
            break;
        }
    }
    sizeFor(isBelow_);
    const auto within = [](int place, int first, int last) {
        return std::clamp(place, first, std::max(first, last));
    };
    const int left = within(control.left(), room.left(), room.right() - width);
    const int top = within(isBelow_ ? control.bottom() + 1 : control.top() - height, window.top(),
                           window.bottom() + 1 - height);
    setGeometry(left, top, width, height);
    tip_ = within(control.left() + std::min(control.width() / 2, 60) - left, 3 * tipHeight,
                  width - 3 * tipHeight);
    update();
}

bool ChoiceCallout::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide)
        dismiss();
    else if ((event->type() == QEvent::Resize || event->type() == QEvent::Move) && control_ && area_)
        place();
    return QFrame::eventFilter(watched, event);
}

// The callout covers a part of the page; turning the wheel over it scrolls the page below.
void ChoiceCallout::wheelEvent(QWheelEvent *event)
{
    if (auto *area = scrollAreaOf(control_))
        QCoreApplication::sendEvent(area->verticalScrollBar(), event);
}

void ChoiceCallout::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect()).adjusted(0.5, isBelow_ ? tipHeight + 0.5 : 0.5, -0.5,
                                               isBelow_ ? -0.5 : -tipHeight - 0.5);
    const double edge = isBelow_ ? box.top() : box.bottom();
    const double point = isBelow_ ? 0.5 : height() - 0.5;
    QPainterPath tip;
    tip.moveTo(tip_ - tipHeight, edge);
    tip.lineTo(tip_, point);
    tip.lineTo(tip_ + tipHeight, edge);
    tip.closeSubpath();
    QPainterPath outline;
    outline.addRoundedRect(box, 4, 4);
    painter.setBrush(tinted(palette(), tint, 0.22));
    painter.setPen(tinted(palette(), tint, 0.8));
    painter.drawPath(outline.united(tip));
}

} // namespace printdialog
