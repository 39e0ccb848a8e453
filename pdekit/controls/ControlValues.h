// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <optional>

class QWidget;

namespace pdekit {

/// Values of stock Qt controls, read and written as text. Each function accepts any widget, and returns
/// nothing or false when the widget has no such value. Writing counts as a program's act: it triggers no
/// action.
///
/// A slider is a QAbstractSlider. Its dynamic property `decimals` (default 0) scales its integers: a range of
/// 0 to 300 with two decimals stands for 0.00 to 3.00.

/// A control is a slider, text field, label, pop-up (QComboBox), button, or radio group.
PDEKIT_EXPORT bool isControl(const QWidget *view);
/// A slider is a QAbstractSlider.
PDEKIT_EXPORT bool isSlider(const QWidget *view);
/// A text field is a QLineEdit.
PDEKIT_EXPORT bool isTextField(const QWidget *view);

/// A slider's number in its shortest form, a text field's or label's text, a pop-up's choice (the current
/// item's user data, else its text), a button's state.
PDEKIT_EXPORT std::optional<QString> stringValue(const QWidget *control);
/// A slider is set to the number at the beginning of `value`, clamped to its range; a pop-up to the item with
/// that choice, if any.
PDEKIT_EXPORT bool setStringValue(QWidget *control, const QString &value);

/// A checkable button's state: 1 on, 0 off, -1 mixed.
PDEKIT_EXPORT std::optional<int> state(const QWidget *control);
PDEKIT_EXPORT bool setState(QWidget *control, int state);

/// A slider's range.
PDEKIT_EXPORT std::optional<double> minValue(const QWidget *control);
PDEKIT_EXPORT std::optional<double> maxValue(const QWidget *control);

/// Whether a program is setting the control's value, so that the change is not a user's action.
PDEKIT_EXPORT bool isBeingSet(const QWidget *control);

} // namespace pdekit
