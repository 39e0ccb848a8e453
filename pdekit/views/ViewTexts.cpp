// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ViewTexts.h"

#include "ControlValues.h"

#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>

namespace pdekit {

std::optional<QString> title(const QWidget *view)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(view))
        return button->text();
    if (const auto *box = qobject_cast<const QGroupBox *>(view))
        return box->title();
    return std::nullopt;
}

bool setTitle(QWidget *view, const QString &title)
{
    if (auto *button = qobject_cast<QAbstractButton *>(view)) {
        button->setText(title);
        return true;
    }
    if (auto *box = qobject_cast<QGroupBox *>(view)) {
        box->setTitle(title);
        return true;
    }
    return false;
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : text;
}

void setPlainToolTip(QWidget *view, const QString &text)
{
    view->setToolTip(plainToolTip(text));
}

bool sizeToFit(QWidget *view)
{
    if (!isControl(view))
        return false;
    view->adjustSize();
    return true;
}

} // namespace pdekit
