// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintProgress.h"

#include "LimitedText.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QProgressBar>

namespace printdialog {

namespace {

constexpr int mostLines = 2;

} // namespace

PrintProgress::PrintProgress(QWidget *parent)
    : QWidget(parent)
    , text_(new LimitedText(mostLines, this))
    , bar_(new QProgressBar(this))
{
    text_->setObjectName(QStringLiteral("progressText"));
    bar_->setTextVisible(false);
    bar_->setAccessibleName(tr("Printing"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar_, 1);
    layout->addWidget(text_, 2);
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
