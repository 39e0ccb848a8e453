// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGui/QRgb>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Numbers that the processor computes with at once: vectors of GCC and clang, which compile for every
/// processor. What they have no operator for is written twice, for x86 and as a loop.
namespace printdialog::lanes {

using Shorts = std::int16_t __attribute__((vector_size(16)));
using UnsignedShorts = std::uint16_t __attribute__((vector_size(16)));
using Ints = std::int32_t __attribute__((vector_size(16)));
using Floats = float __attribute__((vector_size(16)));
/// The components of four pixels.
using Bytes = std::uint8_t __attribute__((vector_size(16)));

/// Reads as many numbers as fit; they need no alignment.
template <class Vector>
inline Vector loaded(const void *from)
{
    Vector vector;
    std::memcpy(&vector, from, sizeof vector);
    return vector;
}

template <class Vector>
inline void store(const Vector &vector, void *to)
{
    std::memcpy(to, &vector, sizeof vector);
}

/// Four 16-bit numbers from each place.
inline Shorts loadedPair(const std::int16_t *low, const std::int16_t *high)
{
    using Halves = std::int64_t __attribute__((vector_size(16)));
    Halves halves = {};
    std::memcpy(&halves, low, sizeof halves[0]);
    std::int64_t other = 0;
    std::memcpy(&other, high, sizeof other);
    halves[1] = other;
    return std::bit_cast<Shorts>(halves);
}

namespace portable {

/// Limits the numbers to 0 to 255.
inline Bytes packed(Shorts low, Shorts high)
{
    Bytes bytes = {};
    for (int i = 0; i < 8; ++i) {
        bytes[i] = static_cast<std::uint8_t>(std::clamp<int>(low[i], 0, 255));
        bytes[i + 8] = static_cast<std::uint8_t>(std::clamp<int>(high[i], 0, 255));
    }
    return bytes;
}

/// Four 16-bit numbers from each place, as the sum of the products with their weights.
inline Ints weighted(const std::int16_t *first, int firstWeight, const std::int16_t *second, int secondWeight)
{
    Ints sums = {};
    for (int i = 0; i < 4; ++i)
        sums[i] = first[i] * firstWeight + second[i] * secondWeight;
    return sums;
}

/// Limits the numbers to 16 bits with a sign.
inline Shorts narrowed(Ints low, Ints high)
{
    Shorts shorts = {};
    for (int i = 0; i < 4; ++i) {
        shorts[i] = static_cast<std::int16_t>(std::clamp(low[i], INT16_MIN, INT16_MAX));
        shorts[i + 4] = static_cast<std::int16_t>(std::clamp(high[i], INT16_MIN, INT16_MAX));
    }
    return shorts;
}

} // namespace portable

#ifdef __SSE2__
inline Bytes packed(Shorts low, Shorts high)
{
    return std::bit_cast<Bytes>(_mm_packus_epi16(std::bit_cast<__m128i>(low), std::bit_cast<__m128i>(high)));
}

inline Ints weighted(const std::int16_t *first, int firstWeight, const std::int16_t *second, int secondWeight)
{
    const __m128i values = _mm_unpacklo_epi16(_mm_loadu_si64(first), _mm_loadu_si64(second));
    return std::bit_cast<Ints>(_mm_madd_epi16(values, _mm_set1_epi32(firstWeight | secondWeight << 16)));
}

inline Shorts narrowed(Ints low, Ints high)
{
    return std::bit_cast<Shorts>(_mm_packs_epi32(std::bit_cast<__m128i>(low), std::bit_cast<__m128i>(high)));
}
#else
using portable::narrowed;
using portable::packed;
using portable::weighted;
#endif

/// The smaller, the larger of two numbers in each place.
template <class Vector>
inline Vector smaller(Vector a, Vector b)
{
    return a < b ? a : b;
}
template <class Vector>
inline Vector larger(Vector a, Vector b)
{
    return a > b ? a : b;
}

/// Calls `use(from, to, x)` for four pixels at a time, x being the first one's place. Each `use` writes four
/// results; of the last ones, those that are one too many are dropped.
template <class Use>
inline void forEachFour(const QRgb *from, QRgb *to, int count, const Use &use)
{
    int x = 0;
    for (; x + 4 <= count; x += 4)
        use(from + x, to + x, x);
    if (x < count) {
        QRgb rest[4] = {};
        std::copy_n(from + x, count - x, rest);
        use(rest, rest, x);
        std::copy_n(rest, count - x, to + x);
    }
}

} // namespace printdialog::lanes
