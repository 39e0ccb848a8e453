// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <optional>

class QWidget;

namespace pdekit {

/// The title of a button, radio cell or group box; nothing for other views.
PDEKIT_EXPORT std::optional<QString> title(const QWidget *view);
PDEKIT_EXPORT bool setTitle(QWidget *view, const QString &title);

/// Escapes a tool tip so that it shows `text` literally: Qt would interpret text that looks like markup. For
/// texts from outside, such as a PPD's keywords or a file's name.
PDEKIT_EXPORT QString plainToolTip(const QString &text);
/// Sets the view's tool tip to plainToolTip(text).
PDEKIT_EXPORT void setPlainToolTip(QWidget *view, const QString &text);

/// Resizes a control to its preferred size; false for a view that is not a control.
PDEKIT_EXPORT bool sizeToFit(QWidget *view);

} // namespace pdekit
