// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorLookup.h"

#include "ColorWay.h"
#include "Lanes.h"

#include <numeric>

namespace printdialog {
namespace {

using lanes::Ints;
using lanes::Shorts;

constexpr int cells = 32; // along each component
constexpr std::uint32_t nodes = cells + 1;
constexpr int one = 256;        // the weights of the nodes around a color together
constexpr int levelScale = 128; // a node's values, in parts of 1/255
constexpr int resultShift = 15; // of one * levelScale

/// From one node to the next one in the direction of each component, in nodes.
constexpr std::uint32_t redStep = nodes * nodes;
constexpr std::uint32_t greenStep = nodes;
constexpr std::uint32_t blueStep = 1;
constexpr std::uint32_t acrossStep = redStep + greenStep + blueStep;

/// A value's cell, and its place in it.
struct Place
{
    std::uint32_t cell;
    int part; ///< from 0 to one
};

constexpr std::array<Place, 256> places = [] {
    std::array<Place, 256> result = {};
    for (std::uint32_t value = 0; value < 256; ++value) {
        const std::uint32_t cell = std::min<std::uint32_t>(value * cells / 255, cells - 1);
        const std::uint32_t part = value * cells - cell * 255;
        result[value] = {cell, static_cast<int>((part * one + 127) / 255)};
    }
    return result;
}();

/// A cell is cut into six tetrahedra along its diagonal. The way from its darkest to its lightest corner
/// leads along the component with the largest part first, and with the smallest one last. These are the
/// second and the third corner, by whether red is at least green, green at least blue, and red at least blue.
struct Corners
{
    std::uint32_t second;
    std::uint32_t third;
};
constexpr Corners corners[8] = {{blueStep, blueStep + greenStep},
                                {blueStep, blueStep + redStep},
                                {greenStep, greenStep + blueStep},
                                {},
                                {},
                                {redStep, redStep + blueStep},
                                {greenStep, greenStep + redStep},
                                {redStep, redStep + greenStep}};

std::vector<WideColor> grid()
{
    std::vector<WideColor> colors;
    colors.reserve(std::size_t(redStep) * nodes);
    const auto level = [](std::uint32_t node) {
        return static_cast<std::uint16_t>((node * 65535 + cells / 2) / cells);
    };
    for (std::uint32_t red = 0; red < nodes; ++red) {
        for (std::uint32_t green = 0; green < nodes; ++green) {
            for (std::uint32_t blue = 0; blue < nodes; ++blue)
                colors.push_back({level(red), level(green), level(blue)});
        }
    }
    return colors;
}

std::int16_t scaled(std::uint16_t level)
{
    return static_cast<std::int16_t>((level * 255 * levelScale + 32767) / 65535);
}

} // namespace

std::shared_ptr<const ColorLookup> ColorLookup::make(const Way &way)
{
    std::vector<WideColor> colors = converted(way, grid());
    if (colors.empty())
        return nullptr;
    // A profile's numbers are rounded, which must not give the greys a tint.
    for (std::size_t i = 0; i < colors.size(); i += acrossStep) {
        const auto [least, most] = std::minmax_element(colors[i].begin(), colors[i].end());
        constexpr int rounding = 32; // of 65535: an eighth of a level
        if (*most - *least <= rounding)
            colors[i].fill(static_cast<std::uint16_t>(std::midpoint(*least, *most)));
    }
    const std::shared_ptr<ColorLookup> lookup(new ColorLookup);
    lookup->nodes_.reserve(colors.size());
    for (const auto &[red, green, blue] : colors)
        lookup->nodes_.push_back({scaled(blue), scaled(green), scaled(red), 255 * levelScale});
    return lookup;
}

void ColorLookup::apply(const QRgb *from, QRgb *to, int count) const
{
    const auto colorOf = [this](QRgb pixel) {
        const Place &red = places[pixel >> 16 & 0xff];
        const Place &green = places[pixel >> 8 & 0xff];
        const Place &blue = places[pixel & 0xff];
        const Node *first =
            nodes_.data() + red.cell * redStep + green.cell * greenStep + blue.cell * blueStep;
        const Corners &others = corners[int(red.part >= green.part) | int(green.part >= blue.part) << 1 |
                                        int(red.part >= blue.part) << 2];
        const int largest = std::max({red.part, green.part, blue.part});
        const int smallest = std::min({red.part, green.part, blue.part});
        const int middle = red.part + green.part + blue.part - largest - smallest;
        const Ints sum =
            lanes::weighted(first->data(), one - largest, first[others.second].data(), largest - middle) +
            lanes::weighted(first[others.third].data(), middle - smallest, first[acrossStep].data(),
                            smallest);
        return (sum + (1 << (resultShift - 1))) >> resultShift;
    };
    lanes::forEachFour(from, to, count, [&](const QRgb *four, QRgb *results, int /*x*/) {
        const Shorts low = lanes::narrowed(colorOf(four[0]), colorOf(four[1]));
        const Shorts high = lanes::narrowed(colorOf(four[2]), colorOf(four[3]));
        lanes::store(lanes::packed(low, high), results);
    });
}

} // namespace printdialog
