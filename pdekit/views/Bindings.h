// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

class QWidget;

namespace pdekit {

class KeyValueObject;

/// Binds the views of a form to the values of its owner, as their dynamic properties say:
///
///     valueBinding    keys, separated by spaces: the owner's values for them follow what the control shows,
///     and the
///                     control shows what is set there
///     enabledBinding  a key: the view, with all it holds, is enabled as long as the owner's value for it is
///     true
///
/// A value follows the control when the control's action is done, so a refused choice, after which the
/// control is reverted, is never seen. A view that other code enables, too, can be put into a container with
/// the binding; then both apply.
PDEKIT_EXPORT void bindControls(QWidget *view, KeyValueObject *owner);

} // namespace pdekit
