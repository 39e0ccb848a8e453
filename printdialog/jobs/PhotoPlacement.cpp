// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPlacement.h"

#include <algorithm>

namespace printdialog {
namespace {

double scaleToFit(const QSizeF &photo, const QSizeF &area)
{
    return std::min(area.width() / photo.width(), area.height() / photo.height());
}

} // namespace

PhotoPlacement PhotoPlacement::fit(const QSize &seenSize, const PageGeometry &page)
{
    // A turn must gain more than rounding does: a square photo, or one on a square area, stays as it is.
    constexpr double leastGain = 1 + 1e-9;

    PhotoPlacement placement;
    QSizeF photo(seenSize);
    const QSizeF area = page.imageable.size();
    if (scaleToFit(photo.transposed(), area) > scaleToFit(photo, area) * leastGain) {
        placement.quarterTurns = 1;
        photo.transpose();
    }
    placement.target.setSize(photo * scaleToFit(photo, area));
    placement.target.moveCenter(page.imageable.center());
    return placement;
}

QTransform PhotoPlacement::toPage(ExifOrientation orientation) const
{
    const QTransform clockwise = ExifOrientation::fromValue(6).transform();
    const QTransform turned =
        quarterTurns == 1 ? orientation.transform() * clockwise : orientation.transform();
    return turned * QTransform(target.width(), 0, 0, target.height(), target.x(), target.y());
}

} // namespace printdialog
