// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <optional>

class QWidget;

namespace pdekit {

/// The title of a button, radio cell or group box; nothing for a view that has none.
PDEKIT_EXPORT std::optional<QString> title(const QWidget *view);
PDEKIT_EXPORT bool setTitle(QWidget *view, const QString &title);

/// What a tool tip must hold to show `text` as it is: one that looks like markup is otherwise taken for
/// markup. For texts from outside, such as a PPD's keywords or a file's name.
PDEKIT_EXPORT QString plainToolTip(const QString &text);
/// Makes `text` the view's tool tip, by plainToolTip().
PDEKIT_EXPORT void setPlainToolTip(QWidget *view, const QString &text);

/// Gives a control its preferred size; false for a view that is no control.
PDEKIT_EXPORT bool sizeToFit(QWidget *view);

} // namespace pdekit
