// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngPicture.h"

#include "PngHeader.h"
#include "PngPixels.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace printdialog {
namespace {

/// Makes a smaller picture of rows, each of its pixels being the mean of those that fall on it.
class MeanRows
{
public:
    MeanRows(const QSize &size, QImage &image, int components)
        : size_(size)
        , image_(image)
        , components_(static_cast<std::size_t>(components))
        , sums_(static_cast<std::size_t>(image.width()) * components_)
        , counts_(static_cast<std::size_t>(image.width()))
        , columns_(static_cast<std::size_t>(size.width()))
    {
        for (int x = 0; x < size.width(); ++x)
            columns_[std::size_t(x)] = static_cast<std::size_t>(qint64(x) * image.width() / size.width());
    }

    void addRow(int y, const unsigned char *row)
    {
        for (const std::size_t column : columns_) {
            ++counts_[column];
            for (std::size_t i = 0; i < components_; ++i)
                sums_[column * components_ + i] += *row++;
        }
        const int target = targetOf(y);
        if (y + 1 == size_.height() || targetOf(y + 1) != target)
            writeRow(target);
    }

private:
    int targetOf(int y) const { return static_cast<int>(qint64(y) * image_.height() / size_.height()); }

    void writeRow(int y)
    {
        unsigned char *out = image_.scanLine(y);
        for (std::size_t i = 0; i < sums_.size(); ++i)
            out[i] = static_cast<unsigned char>(sums_[i] / counts_[i / components_]);
        std::fill(sums_.begin(), sums_.end(), 0);
        std::fill(counts_.begin(), counts_.end(), 0);
    }

    QSize size_;
    QImage &image_;
    std::size_t components_;
    std::vector<quint64> sums_;
    std::vector<quint64> counts_;
    std::vector<std::size_t> columns_; ///< Of the smaller picture, for each of the larger one.
};

} // namespace

QImage decodedPng(QByteArrayView png, const QSize &bound, QString &error)
{
    constexpr int detail = 2; // more than is asked for, since scaling smoothly needs it
    const PngHeader header = PngHeader::read(png);
    const QSize size = header.size;
    const bool isScaled =
        !bound.isEmpty() && bound.width() <= size.width() && bound.height() <= size.height();
    QImage image(isScaled ? (bound * detail).boundedTo(size) : size,
                 header.decodedComponents == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    if (image.isNull())
        return image;
    MeanRows rows(size, image, header.decodedComponents);
    PngPixels pixels(png);
    for (int y = 0; y < size.height(); ++y) {
        const unsigned char *row = pixels.nextRow();
        if (!row) {
            error = pixels.error();
            return {};
        }
        rows.addRow(y, row);
    }
    return isScaled ? image.scaled(bound, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : image;
}

} // namespace printdialog
