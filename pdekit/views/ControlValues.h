// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <optional>

class QWidget;

namespace pdekit {

/// Values of stock Qt controls, read and written as text. Each question may be put to any widget: the answer
/// is nothing, or false, when the widget has no such value. Writing is a program's act: it sends no action.
///
/// A slider is a QAbstractSlider; its dynamic property `decimals` (0 without it) shifts its whole numbers, so
/// that a range of 0 to 300 with two decimals stands for 0.00 to 3.00.

/// A control is a slider, text field, label, pop-up (QComboBox), button, or radio group.
PDEKIT_EXPORT bool isControl(const QWidget *view);
/// A slider is a QAbstractSlider.
PDEKIT_EXPORT bool isSlider(const QWidget *view);
/// A text field is a QLineEdit.
PDEKIT_EXPORT bool isTextField(const QWidget *view);

/// A slider's number in its shortest form, a text field's or label's text, a pop-up's choice (the current
/// item's user data, else its text), a button's state.
PDEKIT_EXPORT std::optional<QString> stringValue(const QWidget *control);
/// A slider takes the number with which `value` begins, within its range; a pop-up the item of that choice,
/// if any.
PDEKIT_EXPORT bool setStringValue(QWidget *control, const QString &value);

/// 1 on, 0 off, -1 mixed; of a button that can be checked.
PDEKIT_EXPORT std::optional<int> state(const QWidget *control);
PDEKIT_EXPORT bool setState(QWidget *control, int state);

/// A slider's range.
PDEKIT_EXPORT std::optional<double> minValue(const QWidget *control);
PDEKIT_EXPORT std::optional<double> maxValue(const QWidget *control);

/// Whether a program is setting the control's value right now, so that its change is no user's action.
PDEKIT_EXPORT bool isBeingSet(const QWidget *control);

} // namespace pdekit
