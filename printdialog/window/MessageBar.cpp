// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MessageBar.h"

#include "MessageTint.h"

#include <QtCore/QEvent>
#include <QtCore/QUrl>
#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

namespace printdialog {

namespace {

QStyle::StandardPixmap iconOf(MessageBar::Kind kind)
{
    switch (kind) {
    case MessageBar::Kind::Information:
        return QStyle::SP_MessageBoxInformation;
    case MessageBar::Kind::Warning:
        return QStyle::SP_MessageBoxWarning;
    case MessageBar::Kind::Error:
        return QStyle::SP_MessageBoxCritical;
    }
    return QStyle::SP_MessageBoxInformation;
}

QColor tintOf(MessageBar::Kind kind)
{
    switch (kind) {
    case MessageBar::Kind::Information:
        return {52, 120, 200};
    case MessageBar::Kind::Warning:
        return {200, 140, 20};
    case MessageBar::Kind::Error:
        return {200, 60, 50};
    }
    return {};
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , icon_(new QLabel(this))
    , text_(new QLabel(this))
    , openFolder_(new QPushButton(tr("Open Folder"), this))
    , actionButton_(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    openFolder_->setAutoDefault(false);
    actionButton_->setObjectName(QStringLiteral("messageAction"));
    actionButton_->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->addWidget(icon_);
    layout->addWidget(text_, 1);
    layout->addWidget(openFolder_);
    layout->addWidget(actionButton_);
    connect(openFolder_, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder_)); });
    connect(actionButton_, &QPushButton::clicked, this, [this] {
        if (const auto action = action_) // which may show another message
            action();
    });
    clear();
}

void MessageBar::show(Kind kind, const QString &text)
{
    showWithFolder(kind, text, {});
}

void MessageBar::showWithFolder(Kind kind, const QString &text, const QString &folder)
{
    folder_ = folder;
    action_ = nullptr;
    say(kind, text);
}

void MessageBar::showWithAction(Kind kind, const QString &text, const QString &actionText,
                                const std::function<void()> &action)
{
    folder_.clear();
    action_ = action;
    actionButton_->setText(actionText);
    say(kind, text);
}

void MessageBar::say(Kind kind, const QString &text)
{
    kind_ = kind;
    openFolder_->setVisible(!folder_.isEmpty());
    actionButton_->setVisible(static_cast<bool>(action_));
    text_->setText(text);
    applyColors();
    setVisible(true);
    // A screen reader says it at once.
    text_->setAccessibleName(text);
    QAccessibleEvent alert(text_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::clear()
{
    text_->clear();
    folder_.clear();
    action_ = nullptr;
    setVisible(false);
}

QString MessageBar::text() const
{
    return text_->text();
}

void MessageBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange)
        applyColors();
    QFrame::changeEvent(event);
}

void MessageBar::applyColors()
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon_->setPixmap(style()->standardIcon(iconOf(kind_), nullptr, this).pixmap(side, side));
    QPalette colors = palette();
    if (parentWidget())
        colors.setColor(QPalette::Window, tinted(parentWidget()->palette(), tintOf(kind_)));
    setPalette(colors);
}

} // namespace printdialog
