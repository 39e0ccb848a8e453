// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WatchBar.h"

#include "ElidingButton.h"
#include "PlainText.h"
#include "WrappingRow.h"

#include <QtCore/QDir>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace printdialog {

WatchBar::WatchBar(QWidget *parent)
    : QWidget(parent)
    , switch_(new QCheckBox(tr("Print new photos of this folder:"), this))
    , choose_(new ElidingButton(this))
    , news_(new QLabel(this))
{
    switch_->setObjectName(QStringLiteral("watchFolder"));
    switch_->setToolTip(
        tr("Photos that arrive in the folder are printed as they come, each once and with the "
           "present choices, until this is switched off or the window is closed"));
    switch_->setAccessibleDescription(switch_->toolTip());
    choose_->setObjectName(QStringLiteral("watchedFolder"));
    choose_->setAutoDefault(false);
    choose_->setAccessibleName(tr("Folder for new photos"));
    news_->setObjectName(QStringLiteral("watchNews"));
    news_->setTextFormat(Qt::PlainText);
    news_->setWordWrap(true);
    news_->hide();
    auto *row = new WrappingRow;
    row->addWidget(switch_);
    row->addWidget(choose_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(row);
    layout->addWidget(news_);
    setFolder({});
    connect(switch_, &QCheckBox::toggled, this, &WatchBar::switched);
    connect(choose_, &QPushButton::clicked, this, &WatchBar::browse);
}

void WatchBar::offer(const QString &folder)
{
    if (!isChosen_ && !isWatching() && !folder.isEmpty())
        setFolder(folder);
}

void WatchBar::setFolder(const QString &folder)
{
    folder_ = folder;
    choose_->setText(folder.isEmpty() ? tr("Choose…", "a folder")
                                      : plainText(QDir::toNativeSeparators(folder)));
    switch_->setEnabled(!folder.isEmpty());
}

void WatchBar::setWatching(bool isWatching)
{
    const QSignalBlocker blocker(switch_);
    switch_->setChecked(isWatching);
    choose_->setEnabled(!isWatching);
}

bool WatchBar::isWatching() const
{
    return switch_->isChecked();
}

void WatchBar::showNews(const QString &sentence)
{
    news_->setText(plainText(sentence, shownTextLimit));
    news_->setVisible(!sentence.isEmpty());
}

void WatchBar::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder for New Photos"), folder_);
    if (folder.isEmpty())
        return;
    isChosen_ = true;
    setFolder(folder);
    switch_->setFocus(Qt::OtherFocusReason);
}

} // namespace printdialog
