// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "UnsharpMask.h"

#include "Lanes.h"

#include <cmath>
#include <cstring>

// Processors have wider vectors than those that every one of them has.
#if defined(__x86_64__) && defined(__linux__)
#define CORVEL_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define CORVEL_VECTOR_CLONES
#endif

namespace printdialog {
namespace {

using lanes::Floats;
using lanes::Ints;

constexpr std::size_t step = 16;    // numbers that are worked out together, in four vectors
constexpr double kernelReach = 2.7; // radii; the weights beyond are below 3 % of the middle one

std::size_t inSteps(std::size_t count)
{
    return (count + step - 1) / step * step;
}

Floats component(Ints pixels, int shift)
{
    return __builtin_convertvector((pixels >> shift) & 0xff, Floats);
}

Floats luminanceOf(Ints pixels)
{
    return component(pixels, 16) * 0.2126F + component(pixels, 8) * 0.7152F + component(pixels, 0) * 0.0722F;
}

Ints sharpened(Ints pixels, Floats difference)
{
    const Floats black = {};
    const auto result = [&](int shift) {
        const Floats value = component(pixels, shift) + difference;
        const Floats limited = lanes::smaller(lanes::larger(value, black), black + 255.0F);
        return __builtin_convertvector(limited + 0.5F, Ints) << shift;
    };
    return result(16) | result(8) | result(0) | static_cast<int>(0xff000000);
}

/// The weighted means of numbers and of those that lie 1, 2, ... places to both sides of them: the row `to`
/// gets weights[0] * before[0] + weights[t] * (before[t] + after[t]). Half of a preview's time is spent here,
/// so there is a version for processors with wider vectors; its results are the same.
/// @param count of the numbers, in steps
CORVEL_VECTOR_CLONES void blur(const std::vector<float> &weights, const std::vector<const float *> &before,
                               const std::vector<const float *> &after, float *to, std::size_t count)
{
    using Wide = float __attribute__((vector_size(32)));
    constexpr std::size_t lanesOfWide = sizeof(Wide) / sizeof(float);
    constexpr std::size_t parts = step / lanesOfWide;
    const std::size_t places = weights.size();
    for (std::size_t x = 0; x < count; x += step) {
        Wide sums[parts];
        for (std::size_t i = 0; i < parts; ++i) {
            std::memcpy(&sums[i], before[0] + x + lanesOfWide * i, sizeof(Wide));
            sums[i] *= weights[0];
        }
        for (std::size_t t = 1; t < places; ++t) {
            for (std::size_t i = 0; i < parts; ++i) {
                Wide left;
                Wide right;
                std::memcpy(&left, before[t] + x + lanesOfWide * i, sizeof(Wide));
                std::memcpy(&right, after[t] + x + lanesOfWide * i, sizeof(Wide));
                sums[i] += (left + right) * weights[t];
            }
        }
        for (std::size_t i = 0; i < parts; ++i)
            std::memcpy(to + x + lanesOfWide * i, &sums[i], sizeof(Wide));
    }
}

} // namespace

UnsharpMask::UnsharpMask(double radius, double amount)
    : amount_(static_cast<float>(amount))
{
    radius = std::min(radius, largestRadius);
    const auto half = std::max(1, static_cast<int>(std::lround(kernelReach * radius)));
    std::vector<double> weights;
    double sum = 0.0;
    for (int i = 0; i <= half; ++i) {
        weights.push_back(std::exp(-0.5 * (i / radius) * (i / radius)));
        sum += i == 0 ? weights.back() : 2.0 * weights.back();
    }
    for (const double weight : weights)
        weights_.push_back(static_cast<float>(weight / sum));
}

void UnsharpMask::apply(QSize size, int begin, int end, const Reader &reader, QRgb *to, qsizetype stride,
                        Scratch &scratch) const
{
    // The columns are blurred first, so the rows that are kept are those of luminance. One for the blurred
    // columns follows, with its border on both sides, and one for the mean.
    const auto width = static_cast<std::size_t>(size.width());
    const std::size_t half = weights_.size() - 1;
    const std::size_t length = inSteps(width);
    const std::size_t kept = 2 * half + 1;
    scratch.numbers.resize(kept * length + half + length + half + length);
    scratch.pixels.resize(length);
    float *const columns = scratch.numbers.data() + kept * length + half;
    float *const mean = columns + length + half;
    const auto luminance = [&](int row) {
        const int inside = std::clamp(row, 0, size.height() - 1);
        return scratch.numbers.data() + static_cast<std::size_t>(inside) % kept * length;
    };
    const auto read = [&](int row) {
        reader(row, scratch.pixels.data());
        float *const luminances = luminance(row);
        for (std::size_t x = 0; x < length; x += 4)
            lanes::store(luminanceOf(lanes::loaded<Ints>(scratch.pixels.data() + x)), luminances + x);
        if (row >= begin && row < end)
            std::copy_n(scratch.pixels.data(), width, to + (row - begin) * stride);
    };

    std::vector<const float *> before(half + 1);
    std::vector<const float *> after(half + 1);
    const int rows = reach();
    for (int row = std::max(0, begin - rows); row < std::min(begin + rows, size.height()); ++row)
        read(row);
    for (int row = begin; row < end; ++row) {
        if (row + rows < size.height())
            read(row + rows);
        for (std::size_t t = 0; t <= half; ++t) {
            before[t] = luminance(row - static_cast<int>(t));
            after[t] = luminance(row + static_cast<int>(t));
        }
        blur(weights_, before, after, columns, length);
        std::fill_n(columns - half, half, columns[0]);
        std::fill_n(columns + width, half, columns[width - 1]);
        for (std::size_t t = 0; t <= half; ++t) {
            before[t] = columns - t;
            after[t] = columns + t;
        }
        blur(weights_, before, after, mean, length);
        QRgb *const pixels = to + (row - begin) * stride;
        const float *const here = luminance(row);
        lanes::forEachFour(pixels, pixels, size.width(), [&](const QRgb *four, QRgb *results, int x) {
            const Floats difference = lanes::loaded<Floats>(here + x) - lanes::loaded<Floats>(mean + x);
            lanes::store(sharpened(lanes::loaded<Ints>(four), difference * amount_), results);
        });
    }
}

} // namespace printdialog
