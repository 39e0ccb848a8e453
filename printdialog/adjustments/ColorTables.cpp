// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorTables.h"

#include "Lanes.h"

#include <cmath>

namespace printdialog {
namespace {

using lanes::Bytes;
using lanes::Shorts;

constexpr int mostFraction = 6;  // for products up to twice white
constexpr int leastFraction = 2; // for three times the largest product, 3 * 4 * 2 * 255, in 16 bits

/// The most bits of a fraction with which no sum leaves 16 bits. Each product has its part in it, since a
/// sum of some of them may be further from 0 than that of all.
int fractionFor(const PictureAdjustment::ColorStage &stage)
{
    double most = 1.0;
    for (const auto &row : stage.matrix) {
        double sum = 0.0;
        for (std::size_t from = 0; from < 3; ++from) {
            const auto &curve = stage.curves[from];
            sum += std::abs(row[from]) * std::max(std::abs(curve.front()), std::abs(curve.back()));
        }
        most = std::max(most, sum);
    }
    int bits = mostFraction;
    while (bits > leastFraction && std::ldexp(most * 255.0 + 1.0, bits) > INT16_MAX)
        --bits;
    return bits;
}

} // namespace

ColorTables::ColorTables(const PictureAdjustment::ColorStage &stage)
    : fraction_(fractionFor(stage))
{
    const std::array<Table *, 3> tables = {&red_, &green_, &blue_};
    for (std::size_t from = 0; from < tables.size(); ++from) {
        for (std::size_t value = 0; value < tables[from]->size(); ++value) {
            const auto share = [&](std::size_t to) {
                const double result = stage.matrix[to][from] * stage.curves[from][value] * 255.0;
                return static_cast<std::int16_t>(std::lround(std::ldexp(result, fraction_)));
            };
            (*tables[from])[value] = {share(2), share(1), share(0), 0};
        }
    }
    // Once for each pixel: what rounds the sum, and the opaque alpha.
    const auto half = static_cast<std::int16_t>(1 << (fraction_ - 1));
    for (Shares &shares : red_) {
        for (std::size_t i = 0; i < 3; ++i)
            shares[i] = static_cast<std::int16_t>(shares[i] + half);
        shares[3] = static_cast<std::int16_t>(255 << fraction_);
    }
}

/// The components of four pixels, not limited to 0 to 255.
struct ColorTables::Result
{
    Shorts low;
    Shorts high;
};

inline ColorTables::Result ColorTables::resultOf(const QRgb *four) const
{
    const auto two = [this](QRgb first, QRgb second) {
        const auto shares = [first, second](const Table &table, int shift) {
            return lanes::loadedPair(table[first >> shift & 0xff].data(),
                                     table[second >> shift & 0xff].data());
        };
        return (shares(red_, 16) + shares(green_, 8) + shares(blue_, 0)) >> fraction_;
    };
    return {two(four[0], four[1]), two(four[2], four[3])};
}

void ColorTables::apply(const QRgb *from, QRgb *to, int count) const
{
    lanes::forEachFour(from, to, count, [this](const QRgb *four, QRgb *results, int /*x*/) {
        const auto [low, high] = resultOf(four);
        lanes::store(lanes::packed(low, high), results);
    });
}

void ColorTables::markClipped(const QRgb *from, const QRgb *source, QRgb *marks, int count) const
{
    for (int x = 0; x < count; x += 4) {
        const auto [low, high] = resultOf(from + x);
        const Bytes before = lanes::loaded<Bytes>(source + x);
        const Bytes black = lanes::packed((low < 0) & clippedToBlack, (high < 0) & clippedToBlack);
        const Bytes white = lanes::packed((low > 255) & clippedToWhite, (high > 255) & clippedToWhite);
        lanes::store(lanes::loaded<Bytes>(marks + x) | (black & (before != 0)) | (white & (before != 255)),
                     marks + x);
    }
}

} // namespace printdialog
