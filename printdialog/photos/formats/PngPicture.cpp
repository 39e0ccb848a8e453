// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngPicture.h"

#include "PngPixels.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace printdialog {
namespace {

/// Scales a picture down row by row: each pixel is the mean of a square with `side` pixels on each side,
/// clipped to the picture.
class MeanRows
{
public:
    MeanRows(const QSize &size, int side, int components)
        : image_((size.width() + side - 1) / side, (size.height() + side - 1) / side,
                 components == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888)
        , size_(size)
        , side_(side)
        , components_(components)
        , sums_(static_cast<std::size_t>(image_.width()) * static_cast<std::size_t>(components))
    {
    }

    /// A null image when memory is short.
    const QImage &image() const { return image_; }

    void addRow(int y, const unsigned char *row)
    {
        for (int x = 0; x < size_.width(); ++x) {
            unsigned *sum = sums_.data() + std::ptrdiff_t(x / side_) * components_;
            for (int i = 0; i < components_; ++i)
                sum[i] += *row++;
        }
        if (y + 1 == size_.height() || (y + 1) % side_ == 0)
            writeRow(y / side_, y % side_ + 1);
    }

private:
    void writeRow(int y, int rows)
    {
        unsigned char *out = image_.scanLine(y);
        const unsigned *sum = sums_.data();
        for (int x = 0; x < image_.width(); ++x) {
            const int columns = std::min(side_, size_.width() - x * side_);
            const auto count = static_cast<unsigned>(rows * columns);
            for (int i = 0; i < components_; ++i)
                *out++ = static_cast<unsigned char>((*sum++ + count / 2) / count);
        }
        std::fill(sums_.begin(), sums_.end(), 0);
    }

    QImage image_;
    QSize size_;
    int side_;
    int components_;
    std::vector<unsigned> sums_;
};

} // namespace

QImage decodedPng(QByteArrayView png, const PngHeader &header, const QSize &bound, QString &error)
{
    const QSize size = header.size;
    const bool isScaled =
        !bound.isEmpty() && bound.width() <= size.width() && bound.height() <= size.height();
    // The remaining factor, less than two, is scaled smoothly.
    const int side = isScaled ? std::min(size.width() / bound.width(), size.height() / bound.height()) : 1;
    MeanRows rows(size, std::clamp(side, 1, 4096), header.decodedComponents);
    if (rows.image().isNull())
        return {};
    PngPixels pixels(png);
    for (int y = 0; y < size.height(); ++y) {
        const unsigned char *row = pixels.nextRow();
        if (!row) {
            error = pixels.error();
            return {};
        }
        rows.addRow(y, row);
    }
    return isScaled ? rows.image().scaled(bound, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                    : rows.image();
}

} // namespace printdialog
