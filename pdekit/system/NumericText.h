// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QStringView>

namespace pdekit {

/// The integer at the beginning of `text`, after white space: a sign and decimal digits; 0 when there is
/// none. Clamped to the range of int. Independent of the locale.
PDEKIT_EXPORT int leadingInteger(QStringView text);

/// The number at the beginning of `text`, after white space: a sign, decimal digits with a point, an
/// exponent; 0.0 when there is none. Hexadecimal, "inf" and "nan" are not numbers. Independent of the locale.
PDEKIT_EXPORT double leadingDouble(QStringView text);

} // namespace pdekit
