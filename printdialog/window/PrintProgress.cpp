// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintProgress.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

namespace printdialog {

PrintProgress::PrintProgress(QWidget *parent)
    : QWidget(parent)
    , text_(new QLabel(this))
    , bar_(new QProgressBar(this))
    , stop_(new QPushButton(tr("S&top Printing"), this))
{
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    bar_->setTextVisible(false);
    bar_->setAccessibleName(tr("Printing"));
    bar_->setMaximumWidth(180);
    stop_->setObjectName(QStringLiteral("stop"));
    stop_->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar_);
    layout->addWidget(text_, 1);
    layout->addWidget(stop_);
    connect(stop_, &QPushButton::clicked, this, &PrintProgress::stopped);
    hide();
}

void PrintProgress::show(const QString &text, qint64 done, qint64 total)
{
    constexpr int steps = 1000;
    text_->setText(text);
    bar_->setRange(0, total > 0 ? steps : 0);
    bar_->setValue(total > 0 ? static_cast<int>(done * steps / total) : 0);
    setVisible(true);
}

QString PrintProgress::text() const
{
    return text_->text();
}

} // namespace printdialog
