// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGui/QImage>
#include <QtGui/QImageIOHandler>
#include <QtGui/QTransform>

namespace printdialog {

/// How a photo's stored pixels are turned and mirrored to be upright: one of the eight values of the Exif tag
/// Orientation (0x0112). The default is 1, upright as stored.
class ExifOrientation
{
public:
    ExifOrientation() = default;

    /// From the tag's value; any value but 1 to 8 counts as 1.
    static ExifOrientation fromValue(int value);
    /// From an image reader's transformation.
    static ExifOrientation fromTransformations(QImageIOHandler::Transformations transformations);

    int value() const { return value_; }
    /// Whether width and height are swapped.
    bool swapsSides() const { return value_ >= 5; }
    /// The upright size for a stored size.
    QSize seenSize(const QSize &stored) const { return swapsSides() ? stored.transposed() : stored; }
    /// Maps the unit square of the stored photo to that of the upright one; y runs down in both.
    QTransform transform() const;
    /// An upright copy of a stored image.
    QImage applied(const QImage &stored) const;

    bool operator==(const ExifOrientation &) const = default;

private:
    int value_ = 1;
};

} // namespace printdialog
