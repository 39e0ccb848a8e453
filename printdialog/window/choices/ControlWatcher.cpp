// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlWatcher.h"

#include "ControlAction.h"
#include "ControlValues.h"
#include "ViewTags.h"

#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLineEdit>

namespace printdialog {

namespace {

/// Focus lost to a menu or another window comes back, so the field is not left.
bool isLeft(const QEvent *event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
}

bool isField(const QWidget *control)
{
    return pdekit::isTextField(control) || qobject_cast<const QAbstractSpinBox *>(control);
}

bool isUndoOrRedo(const QEvent *event)
{
    const auto *key = static_cast<const QKeyEvent *>(event);
    return key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
}

} // namespace

void ControlWatcher::watchView(QWidget *view)
{
    const QList<QWidget *> widgets = view->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (pdekit::tag(widget) != pdekit::noTag && pdekit::isControl(widget))
            watchControl(widget);
    }
}

void ControlWatcher::watchControl(QWidget *control)
{
    control->installEventFilter(this);
    if (auto *field = qobject_cast<QLineEdit *>(control)) {
        connect(field, &QLineEdit::textEdited, this, [this, field] { note(field); });
        connect(field, &QLineEdit::editingFinished, this, [this, field] {
            note(field);
            Q_EMIT typingFinished();
        });
        return;
    }
    pdekit::connectAction(control, this, [this, control] { note(control); });
}

void ControlWatcher::watchField(QWidget *field)
{
    field->installEventFilter(this);
    if (!isField(field))
        canvases_.insert(field);
}

bool ControlWatcher::canContinue(QWidget *control) const
{
    return isField(control) || isDragged(control);
}

bool ControlWatcher::isDragged(QWidget *control) const
{
    return pdekit::isSlider(control) || canvases_.contains(control);
}

void ControlWatcher::note(QWidget *control)
{
    const bool continues = control == last_ && canContinue(control);
    last_ = control;
    Q_EMIT acted(control, continues);
}

bool ControlWatcher::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        if (watched == last_ && isLeft(event))
            endAct();
        break;
    case QEvent::MouseButtonPress:
        if (watched == last_ && isDragged(last_))
            endAct();
        break;
    case QEvent::ShortcutOverride:
        // Otherwise a text field would handle the key itself.
        if (isUndoOrRedo(event)) {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace printdialog
