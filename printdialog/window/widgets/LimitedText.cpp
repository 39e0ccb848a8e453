// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LimitedText.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int shortestLine = 24; // average characters; a narrower place would have too many lines
constexpr int usualLine = 60;

} // namespace

LimitedText::LimitedText(int mostLines, QWidget *parent)
    : QScrollArea(parent)
    , label_(new QLabel)
    , mostLines_(mostLines)
{
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWidget(label_);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    // Transparent, so that the parent's background shows.
    label_->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void LimitedText::setText(const QString &text)
{
    label_->setText(text);
    label_->setAccessibleName(text);
    setAccessibleName(text);
    verticalScrollBar()->setValue(0);
    updateGeometry();
}

QString LimitedText::text() const
{
    return label_->text();
}

int LimitedText::limit() const
{
    return mostLines_ * fontMetrics().lineSpacing();
}

int LimitedText::heightForWidth(int width) const
{
    const int height = label_->heightForWidth(width);
    return std::clamp(height, fontMetrics().lineSpacing(), limit());
}

QSize LimitedText::sizeHint() const
{
    const int width = usualLine * fontMetrics().averageCharWidth();
    return {width, heightForWidth(width)};
}

QSize LimitedText::minimumSizeHint() const
{
    return {shortestLine * fontMetrics().averageCharWidth(), fontMetrics().lineSpacing()};
}

void LimitedText::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    // Accepts the keyboard focus only when there is something to scroll.
    setFocusPolicy(verticalScrollBar()->maximum() > 0 ? Qt::StrongFocus : Qt::NoFocus);
}

} // namespace printdialog
