// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureAdjuster.h"

#include "BandThreads.h"
#include "Lanes.h"

#include <atomic>
#include <cmath>

namespace printdialog {
namespace {

using lanes::Ints;

/// What a step takes for a pixel, about, in nanoseconds.
constexpr double colorsCost = 0.7;
constexpr double surfaceCost = 0.2;
constexpr double lookupCost = 5.0;
constexpr double maskCost = 2.0;
constexpr double maskRowCost = 0.3; // for each row that it reaches

/// How many bands a picture is shared out in. Two threads gain nothing for what is done sooner than another
/// one wakes up; more bands than threads even out what the threads get of the processor.
int bandsFor(const QImage &picture, double pixelCost)
{
    constexpr double leastWork = 6e5; // nanoseconds
    return double(picture.width()) * picture.height() * pixelCost > leastWork ? 2 * BandThreads::threads : 1;
}

QImage rgb32(const QImage &picture)
{
    return picture.format() == QImage::Format_RGB32 ? picture : picture.convertToFormat(QImage::Format_RGB32);
}

/// Makes the image one that can be written to, of the picture's size; a new one only if it must.
void makeLike(const QImage &picture, QImage &image)
{
    if (image.size() != picture.size() || !image.isDetached())
        image = QImage(picture.size(), QImage::Format_RGB32);
    image.setDevicePixelRatio(picture.devicePixelRatio());
}

const QRgb *rowOf(const QImage &image, int row)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(row));
}

/// An image's pixels for threads, which must not call what might detach it.
struct Target
{
    explicit Target(QImage &image)
        : pixels(reinterpret_cast<QRgb *>(image.bits()))
        , stride(image.bytesPerLine() / qsizetype(sizeof(QRgb)))
    {
    }
    QRgb *row(int row) const { return pixels + row * stride; }

    QRgb *pixels;
    qsizetype stride;
};

double pixelsOf(const PictureAdjustment::Sharpening &sharpening, const PictureScale &scale)
{
    constexpr double millimetersPerInch = 25.4;
    const double inches = sharpening.unit == pdekit::Adjustment::Unit::Dots
                              ? sharpening.radius / scale.dotsPerInch
                              : sharpening.radius / millimetersPerInch;
    return inches * scale.pixelsPerInch;
}

/// Colors the marked pixels of a row, in squares of two tones, and counts them.
int colorMarked(const QRgb *marks, int row, QRgb *to, int count)
{
    constexpr int square = 4; // pixels
    constexpr int reds[] = {static_cast<int>(0xffff2020), static_cast<int>(0xff900000)};
    constexpr int blues[] = {static_cast<int>(0xff40a0ff), static_cast<int>(0xff003c90)};
    Ints counts = {};
    for (int x = 0; x < count; x += square) {
        const auto tone = static_cast<std::size_t>((row / square + x / square) % 2);
        const auto four = lanes::loaded<Ints>(marks + x);
        const Ints white = (four & 0x010101 * ColorTables::clippedToWhite) != 0;
        const Ints black = (four & 0x010101 * ColorTables::clippedToBlack) != 0;
        lanes::store((white & reds[tone]) | (black & ~white & blues[tone]), to + x);
        counts -= white | black;
    }
    return counts[0] + counts[1] + counts[2] + counts[3];
}

} // namespace

PictureAdjuster::PictureAdjuster()
    : threads_(std::make_unique<BandThreads>())
{
}

PictureAdjuster::~PictureAdjuster() = default;

void PictureAdjuster::setAdjustment(const PictureAdjustment &adjustment)
{
    if (adjustment == adjustment_)
        return;
    adjustment_ = adjustment;
    colors_ = {adjustment.colors().begin(), adjustment.colors().end()};
    surface_.reset();
    if (adjustment.matte() > 0.0)
        surface_.emplace(adjustment.matte());
    updateMasks();
}

void PictureAdjuster::setScale(const PictureScale &scale)
{
    if (scale == scale_)
        return;
    scale_ = scale;
    updateMasks();
}

void PictureAdjuster::setLookup(std::shared_ptr<const ColorLookup> lookup)
{
    if (lookup == lookup_)
        return;
    lookup_ = std::move(lookup);
    resultOf_ = 0;
    plainOf_ = 0;
}

void PictureAdjuster::updateMasks()
{
    resultOf_ = 0;
    masks_.clear();
    for (const auto &sharpening : adjustment_.sharpenings()) {
        if (const double radius = pixelsOf(sharpening, scale_); radius >= UnsharpMask::smallestRadius)
            masks_.emplace_back(radius, sharpening.amount);
    }
}

bool PictureAdjuster::hidesSharpening() const
{
    return masks_.size() < adjustment_.sharpenings().size();
}

QImage PictureAdjuster::adjusted(const QImage &picture)
{
    if (picture.isNull() || (colors_.empty() && masks_.empty() && !surface_ && !lookup_))
        return picture;
    if (resultOf_ == picture.cacheKey())
        return result_;
    QImage from = rgb32(picture);
    const std::size_t sweeps = std::max<std::size_t>(1, masks_.size());
    for (std::size_t i = 0; i < sweeps; ++i) {
        makeLike(picture, result_);
        if (result_.isNull())
            return picture; // memory is short
        sweep(from, masks_.empty() ? nullptr : &masks_[i], i == 0, i + 1 == sweeps, result_);
        if (i + 1 < sweeps)
            from = result_; // which makes the next one a new picture
    }
    resultOf_ = picture.cacheKey();
    return result_;
}

void PictureAdjuster::readRow(const QImage &from, int row, QRgb *to) const
{
    const QRgb *pixels = rowOf(from, row);
    for (const ColorTables &colors : colors_) {
        colors.apply(pixels, to, from.width());
        pixels = to;
    }
    if (pixels != to)
        std::copy_n(pixels, from.width(), to);
}

void PictureAdjuster::sweep(const QImage &from, const UnsharpMask *mask, bool isFirst, bool isLast,
                            QImage &to)
{
    double cost = mask != nullptr ? maskCost + maskRowCost * mask->reach() : 0.0;
    cost += isFirst ? colorsCost * static_cast<double>(colors_.size()) : 0.0;
    cost += isLast && surface_ ? surfaceCost : 0.0;
    cost += isLast && lookup_ ? lookupCost : 0.0;
    const Target target(to);
    const int width = from.width();
    const auto read = [&](int row, QRgb *pixels) {
        if (isFirst)
            readRow(from, row, pixels);
        else
            std::copy_n(rowOf(from, row), width, pixels);
    };
    threads_->run(from.height(), bandsFor(from, cost), [&](int begin, int end, int thread) {
        if (mask != nullptr)
            mask->apply(from.size(), begin, end, read, target.row(begin), target.stride,
                        scratch_[static_cast<std::size_t>(thread)]);
        for (int row = begin; row < end; ++row) {
            QRgb *const pixels = target.row(row);
            if (mask == nullptr)
                read(row, pixels);
            if (isLast && surface_)
                surface_->apply(pixels, pixels, width);
            if (isLast && lookup_)
                lookup_->apply(pixels, pixels, width);
        }
    });
}

QImage PictureAdjuster::unadjusted(const QImage &picture)
{
    if (picture.isNull() || !lookup_)
        return picture;
    if (plainOf_ == picture.cacheKey())
        return plain_;
    const QImage from = rgb32(picture);
    makeLike(picture, plain_);
    if (plain_.isNull())
        return picture;
    const Target target(plain_);
    threads_->run(from.height(), bandsFor(from, lookupCost), [&](int begin, int end, int /*thread*/) {
        for (int row = begin; row < end; ++row)
            lookup_->apply(rowOf(from, row), target.row(row), from.width());
    });
    plainOf_ = picture.cacheKey();
    return plain_;
}

ClippedTones PictureAdjuster::clippedTones(const QImage &picture, const QRect &part) const
{
    ClippedTones clipped;
    if (picture.isNull())
        return clipped;
    clipped.overlay = QImage(picture.size(), QImage::Format_ARGB32_Premultiplied);
    if (clipped.overlay.isNull())
        return clipped;
    clipped.overlay.setDevicePixelRatio(picture.devicePixelRatio());
    clipped.overlay.fill(Qt::transparent);
    const QRect inside = part & picture.rect();
    if (colors_.empty() || inside.isEmpty())
        return clipped;

    const QImage from = rgb32(picture);
    const Target target(clipped.overlay);
    std::atomic<qint64> pixels = 0;
    const double cost = 2.0 * colorsCost * static_cast<double>(colors_.size());
    threads_->run(inside.height(), bandsFor(from, cost), [&](int begin, int end, int /*thread*/) {
        const int width = inside.width();
        const int length = (width + 3) / 4 * 4;
        std::vector<QRgb> source(static_cast<std::size_t>(length));
        std::vector<QRgb> colors(source.size());
        std::vector<QRgb> marks(source.size());
        for (int row = inside.top() + begin; row < inside.top() + end; ++row) {
            std::copy_n(rowOf(from, row) + inside.left(), width, source.data());
            colors = source;
            std::fill(marks.begin(), marks.end(), 0);
            for (std::size_t i = 0; i < colors_.size(); ++i) {
                if (i > 0)
                    colors_[i - 1].apply(colors.data(), colors.data(), length);
                colors_[i].markClipped(colors.data(), source.data(), marks.data(), length);
            }
            std::fill(marks.begin() + width, marks.end(), 0);
            pixels += colorMarked(marks.data(), row, colors.data(), length);
            std::copy_n(colors.data(), width, target.row(row) + inside.left());
        }
    });
    clipped.pixels = pixels;
    return clipped;
}

} // namespace printdialog
