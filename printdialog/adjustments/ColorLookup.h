// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QRgb>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace printdialog {

/// The way from a photo's RGB values to the screen's, as one table, read by tetrahedral interpolation. A
/// value that is shared; threads may use it together.
class ColorLookup
{
public:
    /// The ICC profiles on the way; an empty one stands for sRGB.
    struct Way
    {
        QByteArray photo;
        QByteArray screen;
        QByteArray proof; ///< the paper's, whose colors are shown; empty for none

        bool operator==(const Way &) const = default;
    };

    /// Makes the table, which takes some 30 ms; null when nothing has to be converted. A screen's profile
    /// that is not usable counts as sRGB, and a paper's as none.
    static std::shared_ptr<const ColorLookup> make(const Way &way);

    /// Converts `count` pixels; `from` and `to` may be the same. The result is opaque.
    void apply(const QRgb *from, QRgb *to, int count) const;

private:
    /// The light of blue, green and red; the last one is not used.
    using Node = std::array<std::int16_t, 4>;

    ColorLookup() = default;

    std::vector<Node> nodes_; ///< by red, then green, then blue
};

} // namespace printdialog
