// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PictureAdjustment.h"

#include <QtGui/QRgb>

#include <array>
#include <cstdint>

namespace printdialog {

/// Curves and a matrix as tables: for each value of red, green and blue its share of the new blue, green and
/// red. At most 1 of 255 beside the exact result.
class ColorTables
{
public:
    /// The values of the curves from -1 to 2, the elements of the matrix from -4 to 4.
    explicit ColorTables(const PictureAdjustment::ColorStage &stage);

    /// Converts `count` pixels; `from` and `to` may be the same. The result is opaque.
    void apply(const QRgb *from, QRgb *to, int count) const;

    /// The marks of a component.
    static constexpr std::uint8_t clippedToBlack = 1;
    static constexpr std::uint8_t clippedToWhite = 2;
    /// Adds a mark for each component that goes beyond black or white, to the byte of `marks` in its place;
    /// but not if it is black or white already in `source`. `count` is a multiple of 4.
    void markClipped(const QRgb *from, const QRgb *source, QRgb *marks, int count) const;

private:
    /// Blue, green, red and alpha, as in memory.
    using Shares = std::array<std::int16_t, 4>;
    using Table = std::array<Shares, 256>;

    struct Result;
    Result resultOf(const QRgb *four) const;

    Table red_;
    Table green_;
    Table blue_;
    int fraction_; ///< bits of the shares
};

} // namespace printdialog
