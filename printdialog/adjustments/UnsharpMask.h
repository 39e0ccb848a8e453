// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSize>
#include <QtGui/QRgb>

#include <functional>
#include <vector>

namespace printdialog {

/// Sharpens the luminance of a picture: of what a pixel's luminance (BT.709, of the 8-bit values) differs
/// from the mean around it, a multiple is added to all three components. The mean is weighted by a Gaussian
/// function, cut where a pixel no longer counts. Beyond the picture its border goes on. At most 1 of 255
/// beside the exact result.
class UnsharpMask
{
public:
    /// What a call needs to work with, kept so that the next one allocates nothing. Each thread has its own.
    struct Scratch
    {
        std::vector<float> numbers;
        std::vector<QRgb> pixels;
    };
    /// Writes the picture's pixels of a row.
    using Reader = std::function<void(int row, QRgb *to)>;

    /// Below this radius the mask would hardly change a picture.
    static constexpr double smallestRadius = 0.5;
    /// The cost grows with the radius: a larger one is limited.
    static constexpr double largestRadius = 24.0;

    /// The radius, the Gaussian function's standard deviation, in pixels, from smallestRadius.
    UnsharpMask(double radius, double amount);

    /// The rows that a result depends on above and below its own.
    int reach() const { return static_cast<int>(weights_.size()) - 1; }

    /// Sharpens the rows from `begin` to before `end` of a picture into `to`, the first row's place; the next
    /// row's is `stride` pixels further. Rows beyond these are read, too, where there are any.
    void apply(QSize size, int begin, int end, const Reader &reader, QRgb *to, qsizetype stride,
               Scratch &scratch) const;

private:
    std::vector<float> weights_; ///< of a pixel itself, of the two beside it, and so on
    float amount_;
};

} // namespace printdialog
