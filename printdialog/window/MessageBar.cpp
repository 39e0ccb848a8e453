// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MessageBar.h"

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
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    openFolder_->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->addWidget(icon_);
    layout->addWidget(text_, 1);
    layout->addWidget(openFolder_);
    connect(openFolder_, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder_)); });
    clear();
}

void MessageBar::show(Kind kind, const QString &text)
{
    showWithFolder(kind, text, {});
}

void MessageBar::showWithFolder(Kind kind, const QString &text, const QString &folder)
{
    kind_ = kind;
    folder_ = folder;
    openFolder_->setVisible(!folder.isEmpty());
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

// A tint over the window's own colour reads well in light and in dark themes.
void MessageBar::applyColors()
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon_->setPixmap(style()->standardIcon(iconOf(kind_), nullptr, this).pixmap(side, side));
    const QColor window = parentWidget() ? parentWidget()->palette().color(QPalette::Window) : QColor();
    const QColor tint = tintOf(kind_);
    constexpr double share = 0.18;
    const auto mix = [](int a, int b) {
        return static_cast<int>(a * (1.0 - share) + b * share);
    };
    QPalette colors = palette();
    colors.setColor(QPalette::Window, QColor(mix(window.red(), tint.red()), mix(window.green(), tint.green()),
                                             mix(window.blue(), tint.blue())));
    setPalette(colors);
}

} // namespace printdialog
