// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ExifOrientation.h"

namespace printdialog {

ExifOrientation ExifOrientation::fromValue(int value)
{
    ExifOrientation orientation;
    if (value >= 1 && value <= 8)
        orientation.value_ = value;
    return orientation;
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
    // Mirror and turn in separate steps: only these move pixels without resampling.
    const bool mirrorsAcross = value_ == 2 || value_ == 3 || value_ == 7;
    const bool mirrorsDown = value_ == 3 || value_ == 4 || value_ == 5;
    const QImage mirrored =
        mirrorsAcross || mirrorsDown ? stored.mirrored(mirrorsAcross, mirrorsDown) : stored;
    return swapsSides() ? mirrored.transformed(QTransform().rotate(value_ == 8 ? 270 : 90)) : mirrored;
}

} // namespace printdialog
