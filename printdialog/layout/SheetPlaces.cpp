// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetPlaces.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace printdialog {

namespace {

/// What a photo covers that fills the place: the place, and the bleed beyond each edge of the sheet that it
/// touches.
QRectF bleedOf(const QRectF &place, const PageGeometry &page)
{
    const QRectF printed = page.printed();
    const auto isSame = [](double one, double other) {
        return std::abs(one - other) < layoutTolerance;
    };
    QRectF bleed = place;
    if (isSame(place.left(), printed.left()))
        bleed.setLeft(page.imageable.left());
    if (isSame(place.right(), printed.right()))
        bleed.setRight(page.imageable.right());
    if (isSame(place.top(), printed.top()))
        bleed.setTop(page.imageable.top());
    if (isSame(place.bottom(), printed.bottom()))
        bleed.setBottom(page.imageable.bottom());
    return bleed;
}

/// The place with its caption below the photo.
SheetPlace placeOf(const QRectF &area, const PageGeometry &page, Caption caption)
{
    if (caption == Caption::None)
        return {{area, bleedOf(area, page)}, {}};
    constexpr double smallestText = 5;
    constexpr double largestText = 10;
    constexpr double share = 0.06; // of the place's height
    constexpr double lineHeight = 1.35;
    const double text = std::clamp(area.height() * share, smallestText, largestText);
    const double height = std::min(text * lineHeight * captionLines(caption), area.height() / 2);
    QRectF photo = area;
    photo.setBottom(area.bottom() - height);
    // Pictures beside their names are looked at like those on a screen: none lies on its side.
    return {{photo, photo, PhotoFrame::Turn::Never},
            QRectF(area.left(), photo.bottom(), area.width(), height)};
}

/// Rows and columns of equal areas; empty when the gaps leave no room.
QList<QRectF> gridOf(const QRectF &whole, int rows, int columns, double gap)
{
    // A print of the shortest side may have lost a rounding error on its way here.
    constexpr double smallest = PrintSize::shortestSide - layoutTolerance;
    const QSizeF size((whole.width() - gap * (columns - 1)) / columns,
                      (whole.height() - gap * (rows - 1)) / rows);
    QList<QRectF> areas;
    if (size.width() < smallest || size.height() < smallest)
        return areas;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            areas += QRectF(QPointF(whole.left() + column * (size.width() + gap),
                                    whole.top() + row * (size.height() + gap)),
                            size);
    }
    return areas;
}

QList<QRectF> manyOfSize(const QRectF &whole, const QSizeF &size, double gap)
{
    const auto count = [gap](double room, double side) {
        return std::max(0, static_cast<int>((room + gap + layoutTolerance) / (side + gap)));
    };
    const auto countOf = [&](const QSizeF &print) {
        return count(whole.width(), print.width()) * count(whole.height(), print.height());
    };
    const QSizeF print = countOf(size.transposed()) > countOf(size) ? size.transposed() : size;
    const int columns = count(whole.width(), print.width());
    const int rows = count(whole.height(), print.height());
    if (rows == 0 || columns == 0)
        return {};
    QRectF block(0, 0, columns * (print.width() + gap) - gap, rows * (print.height() + gap) - gap);
    block.moveCenter(whole.center());
    return gridOf(block, rows, columns, gap);
}

/// Both strips lie along the sheet's longer side. First all places of the first one.
QList<SheetPlace> stripPlaces(const SheetLayout &layout, const PageGeometry &page)
{
    const QRectF printed = page.printed();
    const bool isUpright = printed.height() >= printed.width();
    const double gap = layout.gap;
    QList<SheetPlace> places;
    for (const bool isSecond : {false, true}) {
        QRectF strip = printed;
        if (isUpright) {
            strip.setWidth(printed.width() / 2);
            if (isSecond)
                strip.moveLeft(printed.center().x());
        } else {
            strip.setHeight(printed.height() / 2);
            if (isSecond)
                strip.moveTop(printed.center().y());
        }
        strip.adjust(gap, gap, -gap, -gap);
        if (strip.width() <= 0 || strip.height() <= 0)
            return {};
        QList<QRectF> areas =
            isUpright ? gridOf(strip, layout.stripPhotos, 1, gap) : gridOf(strip, 1, layout.stripPhotos, gap);
        // A strip is read with the photos upright: a quarter turn clockwise leads from the right to the left.
        if (!isUpright)
            std::ranges::reverse(areas);
        const auto turn = isUpright ? PhotoFrame::Turn::Never : PhotoFrame::Turn::Always;
        for (const QRectF &area : areas)
            places += SheetPlace{{area, area, turn}, {}};
    }
    return places;
}

/// How far the ray from the point gets before it meets a print or the edge of the printed area.
double freeWay(const QPointF &from, const QPointF &direction, const QList<QRectF> &prints,
               const QRectF &printed)
{
    const bool isAcross = direction.x() != 0;
    const auto along = [isAcross](const QPointF &point) {
        return isAcross ? point.x() : point.y();
    };
    const double sign = isAcross ? direction.x() : direction.y();
    const double start = along(from);
    double way = sign > 0 ? along(printed.bottomRight()) - start : start - along(printed.topLeft());
    for (const QRectF &print : prints) {
        const QRectF closed =
            print.adjusted(-layoutTolerance, -layoutTolerance, layoutTolerance, layoutTolerance);
        const bool isInTheWay = isAcross ? from.y() >= closed.top() && from.y() <= closed.bottom()
                                         : from.x() >= closed.left() && from.x() <= closed.right();
        if (!isInTheWay)
            continue;
        const double near = sign > 0 ? along(closed.topLeft()) - start : start - along(closed.bottomRight());
        const double far = sign > 0 ? along(closed.bottomRight()) - start : start - along(closed.topLeft());
        if (far > 2 * layoutTolerance)
            way = std::min(way, near);
    }
    return way;
}

} // namespace

int captionLines(Caption caption)
{
    return caption == Caption::None ? 0 : caption == Caption::Both ? 2 : 1;
}

QList<SheetPlace> sheetPlaces(const SheetLayout &layout, const PageGeometry &page,
                              const std::optional<PrintSize> &size)
{
    using Kind = SheetLayout::Kind;
    const QRectF printed = page.printed();
    QList<QRectF> areas;
    QList<SheetPlace> places;
    if (layout.kind == Kind::Grid || layout.kind == Kind::Contact)
        areas = gridOf(printed, layout.rows, layout.columns, layout.gap);
    else if (layout.kind == Kind::ManyOfSize && size)
        areas = manyOfSize(printed, size->points, layout.gap);
    else if (layout.kind == Kind::Strips)
        places = stripPlaces(layout, page);
    // A print of its size has no room left for a caption.
    const Caption caption = layout.kind == Kind::ManyOfSize ? Caption::None : layout.caption;
    for (const QRectF &area : std::as_const(areas))
        places += placeOf(area, page, caption);
    if (places.isEmpty())
        places += placeOf(printed, page, caption);
    return places;
}

QList<QLineF> cutMarksAround(const QList<QRectF> &prints, const QRectF &printed)
{
    constexpr double longest = 4 * pointsPerMillimeter;
    constexpr double distance = 0.5 * pointsPerMillimeter; // from the prints
    constexpr double shortest = 0.5 * pointsPerMillimeter;
    QList<QLineF> marks;
    for (const QRectF &print : prints) {
        const double left = print.left();
        const double right = print.right();
        const double top = print.top();
        const double bottom = print.bottom();
        const std::pair<QPointF, QPointF> corners[] = {{{left, top}, {-1, 0}},    {{left, top}, {0, -1}},
                                                       {{right, top}, {1, 0}},    {{right, top}, {0, -1}},
                                                       {{left, bottom}, {-1, 0}}, {{left, bottom}, {0, 1}},
                                                       {{right, bottom}, {1, 0}}, {{right, bottom}, {0, 1}}};
        for (const auto &[corner, direction] : corners) {
            const double length =
                std::min(longest, freeWay(corner, direction, prints, printed) - distance) - distance;
            if (length >= shortest && printed.contains(corner))
                marks += QLineF(corner + direction * distance, corner + direction * (distance + length));
        }
    }
    return marks;
}

QList<QLineF> cutMarksOfStrips(const SheetLayout &layout, const QRectF &printed)
{
    const double length = layout.gap / 2;
    if (!(length > 0))
        return {};
    const QPointF middle = printed.center();
    if (printed.height() >= printed.width())
        return {QLineF(middle.x(), printed.top(), middle.x(), printed.top() + length),
                QLineF(middle.x(), printed.bottom() - length, middle.x(), printed.bottom())};
    return {QLineF(printed.left(), middle.y(), printed.left() + length, middle.y()),
            QLineF(printed.right() - length, middle.y(), printed.right(), middle.y())};
}

} // namespace printdialog
