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
/// A value follows what the control shows when its action has been dealt with: a choice that is refused, so
/// that the control is put back, is never seen. Views that are enabled by other means too can be put into a
/// container that carries the binding; then both have a say.
PDEKIT_EXPORT void bindControls(QWidget *view, KeyValueObject *owner);

} // namespace pdekit
