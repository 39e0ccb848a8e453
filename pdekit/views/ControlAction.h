// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QtGlobal>

#include <functional>

class QObject;
class QWidget;

namespace pdekit {

/// Calls `action` each time the user, with mouse, keyboard, wheel or an assistive tool, acts on the control:
/// a button or a radio cell clicked, a slider moved (while it is dragged, too), an item of a pop-up picked. A
/// value that a program sets (ControlValues.h) is no action. Ends with `context`. False when the widget has
/// no such action; a text field's are TextFieldEvents.
PDEKIT_EXPORT bool connectAction(QWidget *control, QObject *context, const std::function<void()> &action);

/// The control whose action is being performed, or whose text the user is changing: the innermost one. Null
/// outside of actions. For the dialog, which is asked by a panel and wants to answer beside the control.
PDEKIT_EXPORT QWidget *actingControl();

/// Makes a control the acting one, until it goes.
class PDEKIT_EXPORT ActingControl
{
public:
    explicit ActingControl(QWidget *control);
    ~ActingControl();
    Q_DISABLE_COPY_MOVE(ActingControl)

private:
    QWidget *outer_;
};

} // namespace pdekit
