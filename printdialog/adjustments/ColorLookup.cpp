// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorLookup.h"

#include "ColorWay.h"
#include "Lanes.h"

#include <cmath>

namespace printdialog {
namespace {

using lanes::Ints;
using lanes::Shorts;

constexpr int cells = 32; // along each component
constexpr std::uint32_t nodes = cells + 1;
constexpr int one = 256; // the weights of the nodes around a color together
constexpr int oneShift = 8;
constexpr int fullLight = 1 << 14; // of a node's light, which goes from -2 to 2 times white

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
        return static_cast<float>(node) / cells;
    };
    for (std::uint32_t red = 0; red < nodes; ++red) {
        for (std::uint32_t green = 0; green < nodes; ++green) {
            for (std::uint32_t blue = 0; blue < nodes; ++blue)
                colors.push_back({level(red), level(green), level(blue)});
        }
    }
    return colors;
}

/// The nodes have light, which mixes evenly, and not values: near the limits of the screen's gamut these
/// change so fast that interpolation is far off. Most screens' values are close to those of sRGB, whose light
/// this is. Below black it goes on, since a node outside the gamut still counts for the colors inside.
double lightOf(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double valueOf(double light)
{
    return light <= 0.0031308 ? light * 12.92 : std::pow(light, 1.0 / 2.4) * 1.055 - 0.055;
}

std::int16_t scaled(float value)
{
    const double light = std::isfinite(value) ? lightOf(value) : 0.0;
    return static_cast<std::int16_t>(
        std::lround(std::clamp(light * fullLight, -2.0 * fullLight, 2.0 * fullLight - 1.0)));
}

/// The values of light from black to white.
const std::array<std::uint8_t, fullLight + 1> &levels()
{
    static const auto table = [] {
        std::array<std::uint8_t, fullLight + 1> result = {};
        for (std::size_t i = 0; i < result.size(); ++i)
            result[i] =
                static_cast<std::uint8_t>(std::lround(255.0 * valueOf(static_cast<double>(i) / fullLight)));
        return result;
    }();
    return table;
}

} // namespace

std::shared_ptr<const ColorLookup> ColorLookup::make(const Way &way)
{
    std::vector<WideColor> colors;
    // A profile that is not usable counts as none; the others stay.
    for (const Way &each :
         {way, Way{way.photo, {}, way.proof}, Way{way.photo, way.screen, {}}, Way{way.photo, {}, {}}}) {
        if (needsNoConversion(each))
            return nullptr;
        colors = converted(each, grid());
        if (!colors.empty())
            break;
    }
    if (colors.empty())
        return nullptr;
    // A profile's numbers are rounded, which must not give the greys a tint.
    for (std::size_t i = 0; i < colors.size(); i += acrossStep) {
        const auto [least, most] = std::minmax_element(colors[i].begin(), colors[i].end());
        constexpr float rounding = 0.0005F; // an eighth of a level
        if (*most - *least <= rounding)
            colors[i].fill((*least + *most) / 2.0F);
    }
    const std::shared_ptr<ColorLookup> lookup(new ColorLookup);
    lookup->nodes_.reserve(colors.size());
    for (const auto &[red, green, blue] : colors)
        lookup->nodes_.push_back({scaled(blue), scaled(green), scaled(red), 0});
    return lookup;
}

void ColorLookup::apply(const QRgb *from, QRgb *to, int count) const
{
    const auto lightOf = [this](QRgb pixel) {
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
        return (sum + one / 2) >> oneShift;
    };
    const auto &levelOf = levels();
    for (int x = 0; x < count; x += 2) {
        const bool isLast = x + 1 == count;
        const Shorts black = {};
        const Shorts light = lanes::narrowed(lightOf(from[x]), lightOf(from[isLast ? x : x + 1]));
        std::array<std::uint16_t, 8> lights;
        lanes::store(lanes::smaller(lanes::larger(light, black), black + std::int16_t(fullLight)),
                     lights.data());
        to[x] = qRgb(levelOf[lights[2]], levelOf[lights[1]], levelOf[lights[0]]);
        if (!isLast)
            to[x + 1] = qRgb(levelOf[lights[6]], levelOf[lights[5]], levelOf[lights[4]]);
    }
}

} // namespace printdialog
