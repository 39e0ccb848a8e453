// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MessageBar.h"

#include "AlertRole.h"
#include "ElidingButton.h"
#include "LimitedText.h"
#include "MessageTint.h"
#include "WrappingRow.h"

#include <QtCore/QEvent>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace printdialog {

namespace {

constexpr int mostTextLines = 4;
constexpr int mostDetailLines = 5;

QStyle::StandardPixmap iconOf(MessageBar::Kind kind)
{
    switch (kind) {
    case MessageBar::Kind::Information:
        return QStyle::SP_MessageBoxInformation;
    case MessageBar::Kind::Warning:
        return QStyle::SP_MessageBoxWarning;
    case MessageBar::Kind::Error:
        return QStyle::SP_MessageBoxCritical;
    case MessageBar::Kind::Question:
        return QStyle::SP_MessageBoxQuestion;
    }
    return QStyle::SP_MessageBoxInformation;
}

QColor tintOf(MessageBar::Kind kind)
{
    switch (kind) {
    case MessageBar::Kind::Information:
        return {52, 120, 200};
    case MessageBar::Kind::Warning:
    case MessageBar::Kind::Question:
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
    , text_(new LimitedText(mostTextLines, this))
    , details_(new LimitedText(mostDetailLines, this))
    , showDetails_(new QPushButton(tr("Details"), this))
    , openFolder_(new QPushButton(tr("Open Folder"), this))
    , row_(new WrappingRow)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    pdekit::setAlertRole(this);
    details_->setObjectName(QStringLiteral("messageDetailText"));
    showDetails_->setObjectName(QStringLiteral("messageDetails"));
    showDetails_->setCheckable(true);
    for (QPushButton *button : {showDetails_, openFolder_}) {
        button->setAutoDefault(false);
        button->hide();
    }
    row_->addWidget(text_);
    row_->addWidget(showDetails_);
    row_->addWidget(openFolder_);
    auto *column = new QVBoxLayout;
    column->addLayout(row_);
    column->addWidget(details_);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->addWidget(icon_, 0, Qt::AlignTop);
    layout->addLayout(column, 1);
    connect(showDetails_, &QPushButton::toggled, this, &MessageBar::showDetails);
    connect(openFolder_, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(message_.folder)); });
    clear();
}

void MessageBar::show(const Message &message)
{
    message_ = message;
    openFolder_->setVisible(!message.folder.isEmpty());
    showDetails_->setVisible(!message.details.isEmpty());
    showDetails_->setChecked(false);
    showDetails(false);
    details_->setText(message.details);
    makeActions();
    text_->setText(message.text);
    applyColors();
    setAccessibleName(message.text);
    setVisible(true);
    pdekit::announce(this);
}

void MessageBar::showWithAction(Kind kind, const QString &text, const QString &actionText,
                                const std::function<void()> &action)
{
    show({kind, text, {}, {}, {{actionText, action}}});
}

void MessageBar::append(const QString &sentence)
{
    Message message = message_;
    message.kind = Kind::Error;
    message.text += u'\n' + sentence;
    show(message);
}

void MessageBar::ask(const QString &text, const QList<Action> &answers)
{
    show({Kind::Question, text, {}, {}, answers});
    for (QPushButton *button : std::as_const(actionButtons_))
        button->setAutoDefault(true); // Return answers
    if (!actionButtons_.isEmpty())
        actionButtons_.constFirst()->setFocus(Qt::OtherFocusReason);
}

void MessageBar::makeActions()
{
    for (QPushButton *button : std::exchange(actionButtons_, {})) {
        button->hide();
        button->deleteLater(); // it may be the one that was pressed, whose slot is running
    }
    QWidget *previous = openFolder_;
    for (qsizetype i = 0; i < message_.actions.size(); ++i) {
        auto *button = new ElidingButton(message_.actions.at(i).text, this);
        button->setObjectName(QStringLiteral("messageAction") + (i > 0 ? QString::number(i + 1) : QString()));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, i] { perform(i); });
        row_->addWidget(button);
        setTabOrder(previous, button);
        previous = button;
        actionButtons_.append(button);
        button->show();
    }
}

void MessageBar::perform(qsizetype index)
{
    const std::function<void()> action = message_.actions.at(index).perform; // it may show another message
    if (message_.kind == Kind::Question)
        clear();
    if (action)
        action();
}

void MessageBar::showDetails(bool areShown)
{
    details_->setVisible(areShown);
}

void MessageBar::clear()
{
    message_ = Message();
    text_->setText({});
    details_->setText({});
    makeActions();
    setVisible(false);
}

QString MessageBar::text() const
{
    return message_.text;
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
    icon_->setPixmap(style()->standardIcon(iconOf(message_.kind), nullptr, this).pixmap(side, side));
    QPalette colors = palette();
    if (parentWidget())
        colors.setColor(QPalette::Window, tinted(parentWidget()->palette(), tintOf(message_.kind)));
    setPalette(colors);
}

} // namespace printdialog
