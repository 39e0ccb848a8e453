// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGui/QRgb>

#include <cstdint>

namespace printdialog {

/// What a matte surface does to the colors. It is rough: it scatters a constant share of the light that falls
/// on the paper, where gloss reflects it in one direction, away from the viewer. Black becomes lighter and
/// the contrast lower, white stays: result = value + (255 - value) * 0.12 * matte. The 12 %
/// were chosen by eye; the blacks of matte photo papers lie about there.
class MatteSurface
{
public:
    /// From 0 (gloss, which changes nothing) to 1.
    explicit MatteSurface(double matte);

    /// Converts `count` pixels; `from` and `to` may be the same.
    void apply(const QRgb *from, QRgb *to, int count) const;

private:
    std::uint16_t share_;    ///< of the value, in 1/256
    std::uint16_t constant_; ///< the rest of white, with what rounds the sum
};

} // namespace printdialog
