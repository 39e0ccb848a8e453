// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HeightGrip.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

namespace printdialog {

namespace {

constexpr int keyStep = 40; // pixels

} // namespace

HeightGrip::HeightGrip(QWidget *resized, QWidget *parent)
    : QWidget(parent)
    , resized_(resized)
{
    setCursor(Qt::SplitVCursor);
    setFocusPolicy(Qt::TabFocus);
    setFixedHeight(style()->pixelMetric(QStyle::PM_SplitterWidth, nullptr, this) + 2);
}

void HeightGrip::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.drawControl(QStyle::CE_Splitter, option);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void HeightGrip::mousePressEvent(QMouseEvent *event)
{
    pressedAt_ = event->globalPosition().y();
    heightAtPress_ = resized_->height();
}

void HeightGrip::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        Q_EMIT heightWanted(heightAtPress_ + qRound(pressedAt_ - event->globalPosition().y()));
}

void HeightGrip::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up)
        Q_EMIT heightWanted(resized_->height() + keyStep);
    else if (event->key() == Qt::Key_Down)
        Q_EMIT heightWanted(resized_->height() - keyStep);
    else
        QWidget::keyPressEvent(event);
}

} // namespace printdialog
