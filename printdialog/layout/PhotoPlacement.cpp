// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPlacement.h"

#include <algorithm>
#include <cmath>

namespace printdialog {
namespace {

constexpr double pointsPerInch = 72;
constexpr double shortestMove = 0.01; // points; smaller moves are rounding errors

double scaleToFit(const QSizeF &photo, const QSizeF &area)
{
    return std::min(area.width() / photo.width(), area.height() / photo.height());
}

double scaleToFill(const QSizeF &photo, const QSizeF &area)
{
    return std::max(area.width() / photo.width(), area.height() / photo.height());
}

double visibleSurface(const QSizeF &photo, const QSizeF &area)
{
    return std::min(photo.width(), area.width()) * std::min(photo.height(), area.height());
}

/// Whether the photo fits better on its side. The gain must exceed rounding errors: a square photo, or any
/// photo on a square area, is not turned.
bool gainsByTurn(const QSizeF &photo, const QSizeF &area, Scaling scaling)
{
    constexpr double leastGain = 1 + 1e-9;
    const QSizeF turned = photo.transposed();
    switch (scaling) {
    case Scaling::Fit:
        return scaleToFit(turned, area) > scaleToFit(photo, area) * leastGain;
    case Scaling::Fill:
        return scaleToFill(turned, area) * leastGain < scaleToFill(photo, area);
    case Scaling::ActualSize:
        break;
    }
    return visibleSurface(turned, area) > visibleSurface(photo, area) * leastGain;
}

/// A point of the upright photo's unit square after that many quarter turns clockwise.
QPointF turned(QPointF point, int quarterTurns)
{
    for (int i = 0; i < quarterTurns; ++i)
        point = {1 - point.y(), point.x()};
    return point;
}

double moved(double position, double distance, double slack)
{
    return std::abs(slack) < shortestMove ? position : std::clamp(position + distance / slack, 0.0, 1.0);
}

} // namespace

PhotoPlacement PhotoPlacement::place(const QSize &seenSize, double pixelsPerInch, const PageGeometry &page,
                                     const PlacementChoice &choice)
{
    PhotoPlacement placement;
    placement.area = choice.scaling == Scaling::Fill ? page.imageable : page.printed();
    const QSizeF area = placement.area.size();
    QSizeF photo = QSizeF(seenSize) * (pointsPerInch / pixelsPerInch);
    placement.pageTurns = gainsByTurn(photo, area, choice.scaling) ? 1 : 0;
    placement.quarterTurns = (placement.pageTurns + choice.turns) % 4;
    if (placement.quarterTurns % 2 != 0)
        photo.transpose();
    if (choice.scaling == Scaling::Fit)
        photo *= scaleToFit(photo, area);
    else if (choice.scaling == Scaling::Fill)
        photo *= scaleToFill(photo, area);
    placement.target.setSize(photo);
    const QPointF middle(0.5, 0.5);
    const QPointF crop =
        choice.scaling == Scaling::Fit ? middle : turned(choice.crop, placement.quarterTurns);
    const QPointF slack = placement.slack();
    placement.target.moveTopLeft(placement.area.topLeft() +
                                 QPointF(slack.x() * crop.x(), slack.y() * crop.y()));
    return placement;
}

QTransform PhotoPlacement::toPage(ExifOrientation orientation) const
{
    QTransform turn = orientation.transform();
    const QTransform clockwise = ExifOrientation::fromValue(6).transform();
    for (int i = 0; i < quarterTurns; ++i)
        turn *= clockwise;
    return turn * QTransform(target.width(), 0, 0, target.height(), target.x(), target.y());
}

QPointF PhotoPlacement::slack() const
{
    return {area.width() - target.width(), area.height() - target.height()};
}

PlacementChoice PhotoPlacement::moved(const PlacementChoice &choice, const QPointF &distance) const
{
    PlacementChoice result = choice;
    if (choice.scaling == Scaling::Fit)
        return result;
    const QPointF room = slack();
    QPointF crop = turned(choice.crop, quarterTurns);
    crop.setX(printdialog::moved(crop.x(), distance.x(), room.x()));
    crop.setY(printdialog::moved(crop.y(), distance.y(), room.y()));
    result.crop = turned(crop, (4 - quarterTurns) % 4);
    return result;
}

double PhotoPlacement::cutOff(const PageGeometry &page) const
{
    const QRectF kept = target & page.printed();
    const double whole = target.width() * target.height();
    return std::max(0.0, 1 - kept.width() * kept.height() / whole);
}

} // namespace printdialog
