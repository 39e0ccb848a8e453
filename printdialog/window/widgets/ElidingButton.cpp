// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ElidingButton.h"

#include "ViewTexts.h"

#include <QtCore/QEvent>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int leastCharacters = 16;

} // namespace

QString withoutMnemonic(const QString &text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'&' && ++i == text.size())
            break;
        plain += text.at(i);
    }
    return plain;
}

ElidingButton::ElidingButton(QWidget *parent)
    : ElidingButton(QString(), parent)
{
}

ElidingButton::ElidingButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize ElidingButton::minimumSizeHint() const
{
    const QSize size = sizeHint();
    return {std::min(size.width(), leastCharacters * fontMetrics().averageCharWidth()), size.height()};
}

QString ElidingButton::shownText() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect place = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    return fontMetrics().elidedText(text(), Qt::ElideRight, place.width(), Qt::TextShowMnemonic);
}

void ElidingButton::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = shownText();
    painter.drawControl(QStyle::CE_PushButton, option);
}

bool ElidingButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        pdekit::setPlainToolTip(this, shownText() == text() ? QString() : withoutMnemonic(text()));
    return QPushButton::event(event);
}

} // namespace printdialog
