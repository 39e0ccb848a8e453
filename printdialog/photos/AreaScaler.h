// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <vector>

namespace printdialog {

/// A part of a picture that is scaled down. All in pixels.
struct ScaledPart
{
    QSize whole; ///< what the whole picture is scaled to
    QRect part;  ///< the part of that; not empty
};

/// Scales a part of a picture down row by row. Each pixel is the mean of the area that it covers, weighted
/// where it covers pixels partly, so that parts fit together. Only the result and one row are in memory.
class AreaScaler
{
public:
    /// The size of the picture need not be a whole number of pixels: what decoders have scaled ends within
    /// its last pixels. It is not smaller than what it is scaled to. The components are 1 (grey) or 3 bytes.
    AreaScaler(const QSizeF &picture, const ScaledPart &wanted, int components);

    /// The pixels of the picture that the part covers, the last ones perhaps partly.
    QRect needed() const { return needed_; }
    /// Receives the pixels of the next one of the needed rows, from the top down.
    void addRow(const unsigned char *row);
    /// Grayscale8 or RGB888, complete after the last needed row. A null image when memory is short.
    const QImage &image() const { return image_; }

private:
    /// Pixels that one pixel of the result covers, counted from the first needed one.
    struct Span
    {
        int first;
        int last;
        float ofFirst; ///< the covered share of each of these two
        float ofLast;
    };

    static Span span(double from, double to, int origin);
    void add(const std::vector<float> &row, float weight);
    void finishRow();

    QImage image_;
    QRect needed_;
    std::vector<Span> columns_;
    std::vector<Span> rows_;
    std::vector<float> row_;  ///< the row that was added, scaled across
    std::vector<float> sums_; ///< of the pixels of the row of the result that is being made
    float share_;             ///< of a pixel of the picture in one of the result
    int components_;
    int y_ = 0;   ///< the next row, counted from the first needed one
    int out_ = 0; ///< the row of the result
};

} // namespace printdialog
