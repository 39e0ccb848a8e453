// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TextFieldEvents.h"

#include "ActionGuard.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>

#include <utility>

namespace pdekit {

TextFieldEvents *TextFieldEvents::attach(QLineEdit *field)
{
    qDeleteAll(field->findChildren<TextFieldEvents *>(Qt::FindDirectChildrenOnly));
    return new TextFieldEvents(field);
}

TextFieldEvents::TextFieldEvents(QLineEdit *field)
    : QObject(field)
{
    connect(field, &QLineEdit::textEdited, this, &TextFieldEvents::noteEdit);
    connect(field, &QLineEdit::returnPressed, this, [this] { returnPressed_ = true; });
    connect(field, &QLineEdit::editingFinished, this, &TextFieldEvents::finishEditing);
    field->installEventFilter(this);
}

void TextFieldEvents::noteEdit()
{
    edited_ = true;
    guardAction(parent(), [this] { Q_EMIT textDidChange(); });
}

// QLineEdit emits returnPressed before editingFinished, and emits the latter even if only a program has
// changed the text.
void TextFieldEvents::finishEditing()
{
    const bool byReturn = std::exchange(returnPressed_, false);
    if (std::exchange(edited_, false) || byReturn)
        guardAction(parent(), [this] { Q_EMIT textDidEndEditing(); });
    if (byReturn)
        guardAction(parent(), [this] { Q_EMIT action(); });
}

// The field consumes Return: it must not reach the dialog, whose default button would print.
bool TextFieldEvents::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QObject::eventFilter(watched, event);
    watched->event(event);
    event->accept();
    return true;
}

} // namespace pdekit
