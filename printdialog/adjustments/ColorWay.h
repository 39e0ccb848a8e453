// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorLookup.h"

#include <array>
#include <cstdint>
#include <vector>

namespace printdialog {

/// Red, green and blue from 0 to 65535.
using WideColor = std::array<std::uint16_t, 3>;

/// Converts colors from a photo's to the screen's, with relative colorimetric intent and black point
/// compensation. The profiles are untrusted. Empty when there is nothing to convert, when a profile is too
/// large or cannot be read, or when it is not of the kind for its place: a photo's and a screen's have RGB, a
/// paper's RGB, CMYK or grey.
std::vector<WideColor> converted(const ColorLookup::Way &way, const std::vector<WideColor> &colors);

} // namespace printdialog
