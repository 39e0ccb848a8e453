// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

class QWidget;

namespace pdekit {

/// Has screen readers take the view for an alert, which they read out, and not for a frame or a label with
/// some text. To be called when the view is made.
PDEKIT_EXPORT void setAlertRole(QWidget *view);

/// Has a screen reader say the alert's accessible name.
PDEKIT_EXPORT void announce(QWidget *alert);

} // namespace pdekit
