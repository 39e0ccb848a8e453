// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagePlaces.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace printdialog {

namespace {

/// Of a sheet: how many rows and columns, and whether the pages lie on their sides.
struct Division
{
    int rows;
    int columns;
    bool isTurned;
};

double scaleIn(const Division &division, const QSizeF &room, const QSizeF &shape)
{
    const QSizeF seen = division.isTurned ? shape.transposed() : shape;
    return std::min(room.width() / division.columns / seen.width(),
                    room.height() / division.rows / seen.height());
}

/// The one that shows the pages largest; of equals, the one with upright pages.
Division divisionFor(int count, const QSizeF &room, const QSizeF &shape)
{
    constexpr double leastGain = 1 + 1e-6;
    const int longer = count == 6 ? 3 : count == 2 ? 2 : static_cast<int>(std::lround(std::sqrt(count)));
    const int shorter = count / longer;
    Division best = {longer, shorter, false};
    for (const Division &other : {Division{shorter, longer, false}, Division{longer, shorter, true},
                                  Division{shorter, longer, true}}) {
        if (scaleIn(other, room, shape) > scaleIn(best, room, shape) * leastGain)
            best = other;
    }
    return best;
}

} // namespace

QList<SheetPlace> pagePlaces(int count, double gap, const PageGeometry &page, const QSizeF &shape)
{
    const QRectF printed = page.printed();
    const Division division = divisionFor(count, printed.size(), shape);
    const QSizeF size((printed.width() - gap * (division.columns - 1)) / division.columns,
                      (printed.height() - gap * (division.rows - 1)) / division.rows);
    if (size.width() < PrintSize::shortestSide || size.height() < PrintSize::shortestSide)
        return {};
    QList<SheetPlace> places;
    const auto add = [&](int row, int column) {
        const QRectF area(QPointF(printed.left() + column * (size.width() + gap),
                                  printed.top() + row * (size.height() + gap)),
                          size);
        const auto turn = division.isTurned ? PhotoFrame::Turn::Always : PhotoFrame::Turn::Never;
        places += SheetPlace{{area, area, turn}, {}};
    };
    // Pages that were turned clockwise are read with the sheet turned back: its right side is then at the
    // top.
    if (division.isTurned)
        for (int column = division.columns - 1; column >= 0; --column)
            for (int row = 0; row < division.rows; ++row)
                add(row, column);
    else
        for (int row = 0; row < division.rows; ++row)
            for (int column = 0; column < division.columns; ++column)
                add(row, column);
    return places;
}

QList<SheetPlace> bookletPlaces(const PageGeometry &page)
{
    const QRectF printed = page.printed();
    const QSizeF sheet = page.size;
    const bool isUpright = sheet.height() >= sheet.width();
    // Both pages get the same room, so that they match when the sheet is folded in its middle.
    const double horizontal = std::max(printed.left(), sheet.width() - printed.right());
    const double vertical = std::max(printed.top(), sheet.height() - printed.bottom());
    const QRectF room = QRectF(QPointF(), sheet).adjusted(horizontal, vertical, -horizontal, -vertical);
    QList<SheetPlace> places;
    for (const bool isSecond : {false, true}) {
        QRectF half = room;
        if (isUpright)
            isSecond ? half.setTop(room.center().y()) : half.setBottom(room.center().y());
        else
            isSecond ? half.setLeft(room.center().x()) : half.setRight(room.center().x());
        if (half.width() < PrintSize::shortestSide || half.height() < PrintSize::shortestSide)
            return {};
        const auto turn = isUpright ? PhotoFrame::Turn::Always : PhotoFrame::Turn::Never;
        places += SheetPlace{{half, half, turn}, {}};
    }
    return places;
}

QList<qsizetype> bookletOrder(qsizetype count)
{
    constexpr qsizetype pagesOfSheet = 4;
    const qsizetype places = (count + pagesOfSheet - 1) / pagesOfSheet * pagesOfSheet;
    QList<qsizetype> order;
    for (qsizetype side = 0; side < places / 2; ++side) {
        std::pair sides(places - 1 - side, side);
        if (side % 2 != 0)
            std::swap(sides.first, sides.second);
        const auto there = [count](qsizetype index) {
            return index < count ? index : -1;
        };
        if (there(sides.first) >= 0 || there(sides.second) >= 0)
            order << there(sides.first) << there(sides.second);
    }
    return order;
}

PageFrame PageFrame::of(const QSizeF &size, const PlacementChoice &wanted, const PageGeometry &page)
{
    const QRectF sheet(QPointF(), page.size);
    const auto isSheet = [&sheet](const QSizeF &side) {
        constexpr double rounding = 1; // point; of millimeters, and of programs
        return std::abs(side.width() - sheet.width()) < rounding &&
               std::abs(side.height() - sheet.height()) < rounding;
    };
    PageFrame result = {PhotoFrame::of(page), wanted};
    if (wanted.size || wanted.border.isThere() || wanted.scaling == Scaling::Fill)
        return result;
    const bool isOfPaper = isSheet(size) || isSheet(size.transposed());
    if (wanted.scaling == Scaling::Fit && isOfPaper && wanted.turns % 2 == 0)
        result.placement.scaling = Scaling::ActualSize;
    if (result.placement.scaling == Scaling::ActualSize)
        result.frame = {sheet, sheet, PhotoFrame::Turn::ToSuit};
    return result;
}

double cutOffShare(bool isPage, const PhotoPlacement &placement, const PageGeometry &page)
{
    return placement.cutOff(isPage ? PageGeometry{page.size, QRectF(QPointF(), page.size)} : page);
}

} // namespace printdialog
