// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorLookup.h"

#include <array>
#include <vector>

namespace printdialog {

/// Red, green and blue, from 0 (black) to 1 (white); beyond it outside the gamut.
using WideColor = std::array<float, 3>;

/// Whether the screen shows the photo's values as they are.
bool needsNoConversion(const ColorLookup::Way &way);

/// Converts colors from a photo's to the screen's, by way of the paper's where there is one, with relative
/// colorimetric intent, and black point compensation for what is printed, or else for the screen. What the
/// paper cannot show is clipped, but nothing is for the screen, if its profile allows. The profiles are
/// untrusted. Empty when a profile is too large or cannot be read, or when
/// it is not of the kind for its place: a photo's and a screen's have RGB, a paper's RGB, CMYK or grey.
std::vector<WideColor> converted(const ColorLookup::Way &way, std::vector<WideColor> colors);

} // namespace printdialog
