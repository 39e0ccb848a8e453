// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ExifOrientation.h"

namespace printdialog {
namespace {

constexpr quint32 orientationTag = 0x0112;
constexpr quint32 typeShort = 3;
constexpr qsizetype entrySize = 12;

/// Numbers of a TIFF block in its own byte order; nothing outside the block.
class TiffNumbers
{
public:
    explicit TiffNumbers(QByteArrayView block)
        : block_(block)
        , isBigEndian_(block.startsWith(QByteArrayView("MM\0*", 4)))
    {
    }

    bool isTiff() const { return isBigEndian_ || block_.startsWith(QByteArrayView("II*\0", 4)); }

    /// The number of that many bytes, or 0 where the block has ended.
    quint32 at(qsizetype offset, int bytes) const
    {
        if (offset < 0 || offset > block_.size() - bytes)
            return 0;
        quint32 number = 0;
        for (int i = 0; i < bytes; ++i)
            number = number << 8 | static_cast<quint8>(block_[offset + (isBigEndian_ ? i : bytes - 1 - i)]);
        return number;
    }

private:
    QByteArrayView block_;
    bool isBigEndian_;
};

} // namespace

ExifOrientation ExifOrientation::fromValue(int value)
{
    ExifOrientation orientation;
    if (value >= 1 && value <= 8)
        orientation.value_ = value;
    return orientation;
}

ExifOrientation ExifOrientation::fromTiff(QByteArrayView tiff)
{
    const TiffNumbers numbers(tiff);
    if (!numbers.isTiff())
        return {};
    const qsizetype directory = numbers.at(4, 4);
    const auto count = static_cast<qsizetype>(numbers.at(directory, 2));
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype entry = directory + 2 + i * entrySize;
        if (numbers.at(entry, 2) != orientationTag)
            continue;
        if (numbers.at(entry + 2, 2) != typeShort || numbers.at(entry + 4, 4) != 1)
            break;
        return fromValue(static_cast<int>(numbers.at(entry + 8, 2)));
    }
    return {};
}

ExifOrientation ExifOrientation::fromTransformations(QImageIOHandler::Transformations transformations)
{
    switch (transformations.toInt()) {
    case QImageIOHandler::TransformationMirror:
        return fromValue(2);
    case QImageIOHandler::TransformationRotate180:
        return fromValue(3);
    case QImageIOHandler::TransformationFlip:
        return fromValue(4);
    case QImageIOHandler::TransformationFlipAndRotate90:
        return fromValue(5);
    case QImageIOHandler::TransformationRotate90:
        return fromValue(6);
    case QImageIOHandler::TransformationMirrorAndRotate90:
        return fromValue(7);
    case QImageIOHandler::TransformationRotate270:
        return fromValue(8);
    default:
        return {};
    }
}

QTransform ExifOrientation::transform() const
{
    switch (value_) {
    case 2:
        return {-1, 0, 0, 1, 1, 0};
    case 3:
        return {-1, 0, 0, -1, 1, 1};
    case 4:
        return {1, 0, 0, -1, 0, 1};
    case 5:
        return {0, 1, 1, 0, 0, 0};
    case 6:
        return {0, 1, -1, 0, 1, 0};
    case 7:
        return {0, -1, -1, 0, 1, 1};
    case 8:
        return {0, -1, 1, 0, 0, 1};
    default:
        return {};
    }
}

QImage ExifOrientation::applied(const QImage &stored) const
{
    // Mirroring and quarter turns apart, since only those move pixels without resampling them.
    const bool mirrorsAcross = value_ == 2 || value_ == 3 || value_ == 7;
    const bool mirrorsDown = value_ == 3 || value_ == 4 || value_ == 5;
    const QImage mirrored =
        mirrorsAcross || mirrorsDown ? stored.mirrored(mirrorsAcross, mirrorsDown) : stored;
    return swapsSides() ? mirrored.transformed(QTransform().rotate(value_ == 8 ? 270 : 90)) : mirrored;
}

} // namespace printdialog
