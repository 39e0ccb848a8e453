// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

class QWidget;

namespace pdekit {

/// Makes the view an alert to screen readers, so that they read it out, instead of a frame or a label. Call
/// it when the view is created.
PDEKIT_EXPORT void setAlertRole(QWidget *view);

/// Makes screen readers read the alert's accessible name.
PDEKIT_EXPORT void announce(QWidget *alert);

} // namespace pdekit
