// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceCallout.h"

#include "MessageTint.h"

#include <QtCore/QEvent>
#include <QtGui/QAccessible>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QShortcut>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int tipHeight = 7;
constexpr int padding = 8;
constexpr int widest = 420;
constexpr QColor tint(200, 140, 20);

} // namespace

ChoiceCallout::ChoiceCallout(QWidget *window)
    : QFrame(window)
    , text_(new QLabel(this))
    , offer_(new QPushButton(this))
    , close_(new QToolButton(this))
{
    setObjectName(QStringLiteral("callout"));
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
    layout->setSpacing(padding);
    layout->setColumnStretch(0, 1);
    layout->addWidget(text_, 0, 0);
    layout->addWidget(close_, 0, 1, Qt::AlignTop);
    layout->addWidget(offer_, 1, 0, 1, 2, Qt::AlignLeft);
    connect(close_, &QToolButton::clicked, this, &ChoiceCallout::dismiss);
    connect(offer_, &QPushButton::clicked, this, &ChoiceCallout::offerTaken);
    // Before the dialog takes the key to close itself.
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &ChoiceCallout::dismiss);
    hide();
}

void ChoiceCallout::show(QWidget *control, QWidget *area, const QString &text, const QString &offer)
{
    dismiss();
    join(control);
    area_ = area;
    area_->installEventFilter(this);
    text_->setText(text);
    setAccessibleName(text);
    offer_->setText(offer);
    offer_->setVisible(!offer.isEmpty());
    place();
    setVisible(true);
    raise();
    // A screen reader says it at once.
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

// The keyboard comes from the control to the callout, and from there to what followed the control.
void ChoiceCallout::join(QWidget *control)
{
    control_ = control;
    control_->installEventFilter(this);
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
    if (area_)
        area_->removeEventFilter(this);
    if (control_) {
        control_->removeEventFilter(this);
        if (hadFocus)
            control_->setFocus(Qt::OtherFocusReason);
    }
    control_.clear();
    area_.clear();
}

QString ChoiceCallout::text() const
{
    return isHidden() ? QString() : text_->text();
}

void ChoiceCallout::place()
{
    QWidget *window = parentWidget();
    const auto inWindow = [window](const QWidget *widget) {
        return QRect(widget->mapTo(window, QPoint()), widget->size());
    };
    const QRect control = inWindow(control_);
    QRect area = inWindow(area_);
    const int width = std::min(area.width(), widest);
    const auto sizeFor = [&](bool below) {
        layout()->setContentsMargins(padding + 2, padding + (below ? tipHeight : 0), padding,
                                     padding + (below ? 0 : tipHeight));
        return std::max(layout()->totalHeightForWidth(width), layout()->totalMinimumSize().height());
    };
    const int height = sizeFor(true);
    isBelow_ = control.bottom() + height <= area.bottom();
    if (!isBelow_ && control.top() - height < area.top()) {
        area = window->rect(); // no room in the page: beside the control all the same
        isBelow_ =
            control.bottom() + height <= area.bottom() || area.bottom() - control.bottom() > control.top();
    }
    sizeFor(isBelow_);
    const int left = std::clamp(control.left(), area.left(), std::max(area.left(), area.right() - width));
    setGeometry(left, isBelow_ ? control.bottom() + 1 : control.top() - height, width, height);
    tip_ = std::clamp(control.left() + std::min(control.width() / 2, 60) - left, 3 * tipHeight,
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
