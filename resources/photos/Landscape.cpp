// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Landscape.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QtGui/QImage>

namespace {

constexpr double shore = 560; // where the lake begins
constexpr double lakeFoot = 800;

struct Tone
{
    double r, g, b; // 0 to 1, sRGB
};

Tone mix(Tone a, Tone b, double t)
{
    return {std::lerp(a.r, b.r, t), std::lerp(a.g, b.g, t), std::lerp(a.b, b.b, t)};
}

double noise(int x, int seed)
{
    auto n = static_cast<quint32>(x) * 374761393U + static_cast<quint32>(seed) * 668265263U;
    n = (n ^ (n >> 13U)) * 1274126177U;
    return (n ^ (n >> 16U)) / 4294967295.0;
}

double smoothNoise(double x, int seed)
{
    const double whole = std::floor(x);
    const double t = x - whole;
    const int cell = static_cast<int>(whole);
    return std::lerp(noise(cell, seed), noise(cell + 1, seed), t * t * (3 - 2 * t));
}

/// The height of a mountain ridge at x, 0 to about 1: broad forms with ever finer ones on them.
double ridge(double x, int seed, double roughness)
{
    constexpr int octaves = 8;
    double sum = 0;
    double scale = 420;
    double weight = 0.5;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * smoothNoise(x / scale, seed + static_cast<int>(scale));
        scale /= 2;
        weight *= roughness;
    }
    return sum;
}

Tone sky(double x, double y)
{
    constexpr std::array<Tone, 5> bands{
        {{0.13, 0.23, 0.45}, {0.30, 0.43, 0.66}, {0.72, 0.66, 0.74}, {0.98, 0.76, 0.60}, {1.00, 0.87, 0.66}}};
    const double at = std::clamp(y / 430, 0.0, 0.999) * (bands.size() - 1);
    const auto band = static_cast<std::size_t>(at);
    const Tone air = mix(bands[band], bands[band + 1], at - std::floor(at));
    const double fromSun = std::hypot(x - 1034, y - 268);
    const Tone glow = mix(air, {1, 0.93, 0.76}, 0.85 * std::exp(-fromSun / 150));
    return mix(glow, {1, 0.98, 0.90}, std::clamp((38 - fromSun) / 3, 0.0, 1.0));
}

/// Sky and mountains, without the lake.
Tone land(double x, double y)
{
    struct Range
    {
        double foot, height, roughness;
        Tone color;
    };
    constexpr std::array<Range, 4> ranges{{{470, 250, 0.52, {0.62, 0.58, 0.70}},
                                           {520, 240, 0.50, {0.42, 0.45, 0.60}},
                                           {565, 190, 0.50, {0.23, 0.31, 0.44}},
                                           {590, 120, 0.62, {0.09, 0.17, 0.22}}}};
    Tone tone = sky(x, y);
    int seed = 7;
    for (const Range &range : ranges) {
        const double top = range.foot - range.height * ridge(x, seed, range.roughness);
        const double mist = std::clamp((y - range.foot + range.height * 0.6) / 160, 0.0, 1.0) * 0.35;
        tone = mix(tone, mix(range.color, {0.93, 0.74, 0.66}, mist), std::clamp(y - top, 0.0, 1.0));
        seed += 101;
    }
    return tone;
}

Tone scene(double x, double y)
{
    if (y < shore)
        return land(x, y);
    const double depth = (y - shore) / (lakeFoot - shore);
    const double ripple = std::sin(std::pow(depth, 0.7) * 95 + 3 * smoothNoise(x / 140, 55));
    const double wave = ripple * (smoothNoise(x / 60 + y / 9, 31) - 0.3);
    const Tone mirrored = land(x + 14 * wave * depth, shore - (y - shore) * 1.9 + 40 * wave * depth);
    const double shine = std::clamp((mirrored.g - 0.8) / 0.15, 0.0, 1.0); // the sun outshines the water
    return mix(mirrored, {0.10, 0.20, 0.33}, (0.14 + 0.28 * depth) * (1 - 0.75 * shine));
}

} // namespace

void drawLandscape(QImage &image, int height)
{
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const Tone tone = scene(x, y);
            const double dither = noise(x, y) - 0.5; // keeps the sky free of bands
            const auto level = [dither](double value) {
                return static_cast<int>(std::lround(std::clamp(value * 255 + dither, 0.0, 255.0)));
            };
            line[x] = qRgb(level(tone.r), level(tone.g), level(tone.b));
        }
    }
}
