// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MatteSurface.h"

#include "Lanes.h"

#include <cmath>

namespace printdialog {
namespace {

constexpr double scattered = 0.12; // the light that the most matte paper scatters

} // namespace

MatteSurface::MatteSurface(double matte)
    : share_(static_cast<std::uint16_t>(std::lround((1.0 - scattered * matte) * 256.0)))
    , constant_(static_cast<std::uint16_t>(255 * (256 - share_) + 128))
{
}

void MatteSurface::apply(const QRgb *from, QRgb *to, int count) const
{
    lanes::forEachFour(from, to, count, [this](const QRgb *four, QRgb *results, int /*x*/) {
        using lanes::UnsignedShorts;
        // Each second component is in the lower half of a number, the others are in the upper one.
        const auto values = lanes::loaded<UnsignedShorts>(four);
        const UnsignedShorts lower = ((values & 0xff) * share_ + constant_) >> 8;
        const UnsignedShorts upper = ((values >> 8) * share_ + constant_) & 0xff00;
        lanes::store(lower | upper, results);
    });
}

} // namespace printdialog
