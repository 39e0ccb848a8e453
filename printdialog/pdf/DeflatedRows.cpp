// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DeflatedRows.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace printdialog {
namespace {

constexpr int level = 4; // higher levels take twice as long and save a few per cent of a photo
constexpr std::size_t outputSize = std::size_t(128) << 10;

enum Filter : Bytef { Sub = 1, Up = 2, Paeth = 4 };

/// The Paeth predictor: of the bytes left, above, and above left, the one closest to left + above - corner.
inline int likeliest(int left, int above, int corner)
{
    const int byLeft = std::abs(above - corner);
    const int byAbove = std::abs(left - corner);
    const int byCorner = std::abs(left + above - 2 * corner);
    const int ofTwo = byAbove <= byCorner ? above : corner;
    return byLeft <= byAbove && byLeft <= byCorner ? left : ofTwo;
}

/// Filters a row and returns the sum of the absolute results.
template <class Predictor>
unsigned filter(std::vector<Bytef> &result, Bytef name, const Bytef *row, std::size_t size,
                const Predictor &predictor)
{
    unsigned sum = 0;
    result[0] = name;
    Bytef *out = result.data() + 1;
    for (std::size_t i = 0; i < size; ++i) {
        out[i] = static_cast<Bytef>(row[i] - predictor(i));
        sum += static_cast<unsigned>(std::abs(static_cast<int>(static_cast<signed char>(out[i]))));
    }
    return sum;
}

} // namespace

DeflatedRows::DeflatedRows(std::size_t rowSize, std::size_t pixelSize, Sink sink)
    : rowSize_(rowSize)
    , pixelSize_(pixelSize)
    , sink_(std::move(sink))
    , previous_(pixelSize + rowSize)
    , current_(pixelSize + rowSize)
    , best_(1 + rowSize)
    , candidate_(1 + rowSize)
    , output_(outputSize)
{
    if (deflateInit2(&stream_, level, Z_DEFLATED, MAX_WBITS, MAX_MEM_LEVEL, Z_FILTERED) != Z_OK)
        throw std::bad_alloc();
}

DeflatedRows::~DeflatedRows()
{
    deflateEnd(&stream_);
}

void DeflatedRows::addRow(const unsigned char *row)
{
    std::copy_n(row, rowSize_, current_.begin() + static_cast<std::ptrdiff_t>(pixelSize_));
    const Bytef *left = current_.data();
    const Bytef *corner = previous_.data();
    const Bytef *above = previous_.data() + pixelSize_;
    unsigned least = filter(best_, Sub, row, rowSize_, [left](std::size_t i) { return left[i]; });
    const auto take = [&](unsigned sum) {
        if (sum < least) {
            least = sum;
            best_.swap(candidate_);
        }
    };
    take(filter(candidate_, Up, row, rowSize_, [above](std::size_t i) { return above[i]; }));
    take(filter(candidate_, Paeth, row, rowSize_, [left, above, corner](std::size_t i) {
        return static_cast<Bytef>(likeliest(left[i], above[i], corner[i]));
    }));
    compress(best_, Z_NO_FLUSH);
    previous_.swap(current_);
}

void DeflatedRows::finish()
{
    std::vector<Bytef> nothing;
    compress(nothing, Z_FINISH);
}

void DeflatedRows::compress(std::vector<Bytef> &bytes, int flush)
{
    stream_.next_in = bytes.data();
    stream_.avail_in = static_cast<uInt>(bytes.size());
    do {
        stream_.next_out = output_.data();
        stream_.avail_out = static_cast<uInt>(output_.size());
        deflate(&stream_, flush);
        const auto count = static_cast<qsizetype>(output_.size() - stream_.avail_out);
        if (count > 0)
            sink_(QByteArrayView(output_.data(), count));
    } while (stream_.avail_out == 0);
}

} // namespace printdialog
