// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetBar.h"

#include "PreviewWidget.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace printdialog {

SheetBar::SheetBar(PreviewWidget *preview, QWidget *parent)
    : QWidget(parent)
    , preview_(preview)
    , previous_(addButton("previousSheet", Qt::LeftArrow, tr("Previous sheet"),
                          QKeySequence(Qt::Key_PageUp).toString(QKeySequence::NativeText)))
    , label_(new QLabel(this))
    , next_(addButton("nextSheet", Qt::RightArrow, tr("Next sheet"),
                      QKeySequence(Qt::Key_PageDown).toString(QKeySequence::NativeText)))
{
    label_->setObjectName(QStringLiteral("sheetNumber"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    for (QWidget *widget :
         {static_cast<QWidget *>(previous_), static_cast<QWidget *>(label_), static_cast<QWidget *>(next_)})
        layout->addWidget(widget);
    connect(previous_, &QToolButton::clicked, preview, [preview] { preview->turnSheets(-1); });
    connect(next_, &QToolButton::clicked, preview, [preview] { preview->turnSheets(1); });
    connect(preview, &PreviewWidget::sheetNumberChanged, this, &SheetBar::show);
    show();
}

QToolButton *SheetBar::addButton(const char *name, Qt::ArrowType arrow, const QString &text,
                                 const QString &key)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setAccessibleName(text);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(text, key));
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRepeat(true);
    return button;
}

void SheetBar::show()
{
    const int number = preview_->sheetNumber();
    const int count = preview_->sheetCount();
    label_->setText(tr("Sheet %1 of %2").arg(number + 1).arg(count));
    previous_->setEnabled(number > 0);
    next_->setEnabled(number + 1 < count);
    setVisible(count > 1);
}

} // namespace printdialog
