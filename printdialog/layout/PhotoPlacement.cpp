// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPlacement.h"

#include <algorithm>
#include <cmath>

namespace printdialog {
namespace {

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

int turnsOfPhoto(const QSizeF &photo, const QSizeF &area, Scaling scaling, PhotoFrame::Turn turn)
{
    if (turn == PhotoFrame::Turn::ToSuit)
        return gainsByTurn(photo, area, scaling) ? 1 : 0;
    return turn == PhotoFrame::Turn::Always ? 1 : 0;
}

/// The print's size beside an upright photo: a wide photo gets a wide print.
QSizeF sizeFor(const QSizeF &photo, const PrintSize &size)
{
    const bool isOther = (photo.width() > photo.height()) != (size.points.width() > size.points.height());
    return isOther && !size.keepsOrientation && photo.width() != photo.height() ? size.points.transposed()
                                                                                : size.points;
}

/// Whether the print lies on its side in the frame: only when it has no room otherwise.
int turnsOfPrint(const QSizeF &size, const PhotoFrame &frame)
{
    if (frame.turn != PhotoFrame::Turn::ToSuit)
        return frame.turn == PhotoFrame::Turn::Always ? 1 : 0;
    const auto overlap = [&frame](const QSizeF &print) {
        return print.boundedTo(frame.area.size() + QSizeF(layoutTolerance, layoutTolerance));
    };
    const QSizeF upright = overlap(size);
    const QSizeF turned = overlap(size.transposed());
    const double gain = turned.width() * turned.height() - upright.width() * upright.height();
    return gain > layoutTolerance * (size.width() + size.height()) ? 1 : 0;
}

/// The room inside a border; a point's width of it when the border leaves nothing.
QRectF within(const QRectF &room, double border)
{
    const double most = std::max(0.0, (std::min(room.width(), room.height()) - 1) / 2);
    const double width = std::min(border, most);
    return room.adjusted(width, width, -width, -width);
}

QRectF inTheMiddle(const QRectF &area, const QSizeF &size)
{
    QRectF rect(QPointF(), size);
    rect.moveCenter(area.center());
    return rect;
}

} // namespace

PhotoPlacement PhotoPlacement::place(const QSizeF &seenSize, double pixelsPerInch, const PhotoFrame &frame,
                                     const PlacementChoice &choice)
{
    PhotoPlacement placement;
    placement.border = choice.border;
    QSizeF photo = seenSize * (pointsPerInch / pixelsPerInch);
    QRectF room = frame.area;     // for the print with its border
    QRectF covered = frame.bleed; // by a photo that fills it
    if (choice.size) {
        const QSizeF size = sizeFor(photo, *choice.size);
        placement.pageTurns = turnsOfPrint(size, frame);
        room = inTheMiddle(frame.area, placement.pageTurns != 0 ? size.transposed() : size);
        covered = room;
    }
    const double width = choice.border.width;
    const QRectF inner = within(room, width);
    const bool isFilled = choice.scaling == Scaling::Fill;
    placement.area = choice.border.isThere() ? inner : isFilled ? covered : room;
    placement.clip = choice.border.isThere() ? inner : covered;

    const QSizeF area = placement.area.size();
    if (!choice.size)
        placement.pageTurns = turnsOfPhoto(photo, area, choice.scaling, frame.turn);
    placement.quarterTurns = (placement.pageTurns + choice.turns) % 4;
    if (placement.quarterTurns % 2 != 0)
        photo.transpose();
    if (choice.scaling == Scaling::Fit)
        photo *= scaleToFit(photo, area);
    else if (isFilled)
        photo *= scaleToFill(photo, area);
    photo *= choice.scale;
    placement.target.setSize(photo);
    const QPointF middle(0.5, 0.5);
    const QPointF crop = choice.isCentered() ? middle : turned(choice.crop, placement.quarterTurns);
    const QPointF slack = placement.slack();
    placement.target.moveTopLeft(placement.area.topLeft() +
                                 QPointF(slack.x() * crop.x(), slack.y() * crop.y()));

    // A print of a size of its own is cut out along its size, any other along what is seen of it.
    const QRectF seen = placement.target & placement.clip;
    const QRectF framed = isFilled ? covered : seen.adjusted(-width, -width, width, width);
    placement.outline = choice.size ? room : choice.border.isThere() ? framed : seen;
    return placement;
}

bool PhotoPlacement::fits(const QSizeF &size, const QSizeF &area)
{
    const auto hasRoom = [&area](const QSizeF &print) {
        return print.width() <= area.width() + layoutTolerance &&
               print.height() <= area.height() + layoutTolerance;
    };
    return hasRoom(size) || hasRoom(size.transposed());
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
    if (choice.isCentered())
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
    const QRectF kept = seen(page);
    const double whole = target.width() * target.height();
    return std::max(0.0, 1 - kept.width() * kept.height() / whole);
}

} // namespace printdialog
