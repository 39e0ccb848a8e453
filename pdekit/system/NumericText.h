// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QStringView>

namespace pdekit {

/// The integer with which `text` begins, after white space: a sign and decimal digits; 0 when there is none.
/// What is beyond the range of int becomes its end. No locale takes part.
PDEKIT_EXPORT int leadingInteger(QStringView text);

/// The number with which `text` begins, after white space: a sign, decimal digits with a point, an exponent;
/// 0.0 when there is none. Hexadecimal, "inf" and "nan" are no numbers. No locale takes part.
PDEKIT_EXPORT double leadingDouble(QStringView text);

} // namespace pdekit
