// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <functional>

class QObject;
class QWidget;

namespace pdekit {

/// Calls `action` each time the user, with mouse, keyboard, wheel or an assistive tool, acts on the control:
/// a button or a radio cell clicked, a slider moved (while it is dragged, too), an item of a pop-up picked. A
/// value set by a program (ControlValues.h) is not an action. Ends with `context`. False when the widget has
/// no such action; for text fields see TextFieldEvents.
PDEKIT_EXPORT bool connectAction(QWidget *control, QObject *context, const std::function<void()> &action);

} // namespace pdekit
