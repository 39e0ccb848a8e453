// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

class QWidget;

namespace pdekit {

/// The result for a view without a tag.
inline constexpr int noTag = -1;

/// The tag of a view: its dynamic property `tag`, which a form sets.
PDEKIT_EXPORT int tag(const QWidget *view);
PDEKIT_EXPORT void setTag(QWidget *view, int tag);

/// The first view with the tag among `view` itself and then its descendants, each before its own children, in
/// the order in which they were made; null when there is none or `view` is null.
PDEKIT_EXPORT QWidget *viewWithTag(QWidget *view, int tag);

} // namespace pdekit
