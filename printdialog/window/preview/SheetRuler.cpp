// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetRuler.h"

#include "PrintSize.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPalette>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace printdialog {

namespace {

/// A number every so many units, and marks between the numbers.
struct Scale
{
    double numbered;
    std::array<int, 4> divisions; ///< the finest first
};

constexpr std::array<Scale, 7> millimeters = {{{5, {5, 1, 1, 1}},
                                               {10, {10, 5, 2, 1}},
                                               {20, {20, 10, 4, 2}},
                                               {50, {50, 10, 5, 1}},
                                               {100, {20, 10, 5, 2}},
                                               {200, {20, 10, 4, 2}},
                                               {500, {10, 5, 1, 1}}}};
constexpr std::array<Scale, 5> inches = {
    {{1, {16, 8, 4, 2}}, {2, {16, 8, 4, 2}}, {5, {20, 10, 5, 1}}, {10, {20, 10, 5, 2}}, {20, {20, 4, 2, 1}}}};

constexpr double leastDistance = 4; ///< between two marks, in logical pixels
constexpr int beside = 2;           ///< from the ruler to the sheet, and from a mark to its number

QFont rulerFont(const QFont &font)
{
    QFont small = font;
    constexpr double smaller = 0.8;
    if (small.pointSizeF() > 0)
        small.setPointSizeF(small.pointSizeF() * smaller);
    return small;
}

bool usesInches()
{
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem;
}

/// A ruler that runs to the right from the origin.
struct Ruler
{
    bool isAbove; ///< whether the sheet is below it
    double thickness;
    double begin; ///< what of it is seen, in logical pixels from its 0
    double end;
    double perPoint;  ///< logical pixels
    double markBegin; ///< the print's edges, in logical pixels; the same without a print
    double markEnd;
};

const Scale &scaleFor(std::span<const Scale> scales, double perUnit, double leastNumbered)
{
    const auto scale = std::ranges::find_if(
        scales, [&](const Scale &each) { return each.numbered * perUnit >= leastNumbered; });
    return scale == scales.end() ? scales.back() : *scale;
}

void paint(QPainter &painter, const Ruler &ruler, const QPalette &palette)
{
    const double perUnit = ruler.perPoint * (usesInches() ? pointsPerInch : pointsPerMillimeter);
    const std::span<const Scale> scales = usesInches() ? std::span<const Scale>(inches) : millimeters;
    const QFontMetricsF metrics(painter.font());
    const double leastNumbered = metrics.horizontalAdvance(QStringLiteral("0000")) + leastDistance;
    const Scale &scale = scaleFor(scales, perUnit, leastNumbered);
    const auto division = std::ranges::find_if(
        scale.divisions, [&](int count) { return scale.numbered * perUnit / count >= leastDistance; });
    const int count = division == scale.divisions.end() ? 1 : *division;
    const double step = scale.numbered * perUnit / count;

    const QRectF band(ruler.begin, 0, ruler.end - ruler.begin, ruler.thickness);
    painter.fillRect(band, palette.color(QPalette::Base));
    QColor marked = palette.color(QPalette::Highlight);
    painter.setClipRect(band);
    if (ruler.markEnd > ruler.markBegin) {
        constexpr int tint = 90;
        marked.setAlpha(tint);
        painter.fillRect(QRectF(ruler.markBegin, 0, ruler.markEnd - ruler.markBegin, ruler.thickness),
                         marked);
    }
    painter.setPen(QPen(palette.color(QPalette::Text), 0));
    const double base = ruler.isAbove ? ruler.thickness - 1 : 0;
    const double outwards = ruler.isAbove ? -1 : 1;
    painter.drawLine(QPointF(ruler.begin, base), QPointF(ruler.end, base));
    for (int i = std::max(0, static_cast<int>(std::floor(ruler.begin / step)) - count); i * step <= ruler.end;
         ++i) {
        const double x = i * step;
        const bool isNumbered = i % count == 0;
        const bool isMiddle = count % 2 == 0 && i % (count / 2) == 0;
        const double length = ruler.thickness * (isNumbered ? 1.0 : isMiddle ? 0.5 : 0.3);
        painter.drawLine(QPointF(x, base), QPointF(x, base + outwards * length));
        const QString number =
            isNumbered ? QLocale().toString(qRound(i / count * scale.numbered)) : QString();
        if (x + beside + metrics.horizontalAdvance(number) <= ruler.end)
            painter.drawText(
                QPointF(x + beside, ruler.isAbove ? metrics.ascent() : ruler.thickness - metrics.descent()),
                number);
    }
    marked.setAlpha(255);
    painter.setPen(QPen(marked, 2));
    if (ruler.markEnd > ruler.markBegin) {
        for (const double edge : {ruler.markBegin, ruler.markEnd})
            painter.drawLine(QPointF(edge, 0), QPointF(edge, ruler.thickness));
    }
}

double widest(const PageGeometry &page)
{
    const QRectF sheet(QPointF(0, 0), page.size);
    return std::max({sheet.left() - page.imageable.left(), sheet.top() - page.imageable.top(),
                     page.imageable.right() - sheet.right(), page.imageable.bottom() - sheet.bottom()});
}

} // namespace

int rulerWidth(const QFont &font)
{
    return static_cast<int>(std::ceil(QFontMetricsF(rulerFont(font)).height())) + 2 * beside;
}

void paintRulers(QPainter &painter, const PageView &view, const QRectF &print, const QPalette &palette)
{
    const QTransform toRoom = view.toRoom();
    const QRectF sheet = toRoom.mapRect(QRectF(QPointF(0, 0), view.page.size));
    const QRectF marked = print.isEmpty() ? QRectF() : toRoom.mapRect(print);
    const double thickness = rulerWidth(painter.font()) - beside;
    const double perPoint = view.pixelsPerInch() / view.ratio / pointsPerInch;
    painter.save();
    painter.setFont(rulerFont(painter.font()));
    painter.setRenderHint(QPainter::Antialiasing, false);
    // Beside the sheet, or at the edge of the view when the sheet goes on there.
    const double away = beside + std::max(0.0, widest(view.page)) * perPoint;
    const double top = std::max(0.0, sheet.top() - away - thickness);
    const double left = std::max(0.0, sheet.left() - away - thickness);
    const auto shown = [](double begin, double end, double first, double last) {
        return std::pair(std::max(0.0, first - begin), std::min(end, last) - begin);
    };
    painter.fillRect(QRectF(left, top, thickness, thickness), palette.color(QPalette::Base));
    const auto across = shown(sheet.left(), sheet.right(), left + thickness, view.room.width());
    const auto along = shown(sheet.top(), sheet.bottom(), top + thickness, view.room.height());
    painter.save();
    painter.translate(sheet.left(), top);
    paint(painter,
          {true, thickness, across.first, across.second, perPoint, marked.left() - sheet.left(),
           marked.right() - sheet.left()},
          palette);
    painter.restore();
    painter.translate(left + thickness, sheet.top());
    painter.rotate(90);
    paint(painter,
          {false, thickness, along.first, along.second, perPoint, marked.top() - sheet.top(),
           marked.bottom() - sheet.top()},
          palette);
    painter.restore();
}

void paintBleed(QPainter &painter, const PageView &view)
{
    if (widest(view.page) <= layoutTolerance)
        return;
    const QRectF printed = view.toRoom().mapRect(view.page.imageable);
    const QRectF sheet = view.toRoom().mapRect(QRectF(QPointF(0, 0), view.page.size));
    const QColor color(190, 70, 0);
    QPainterPath around;
    around.addRect(printed | sheet);
    around.addRect(sheet);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(around, QBrush(color, Qt::BDiagPattern));
    painter.setPen(QPen(color, 1, Qt::DashLine));
    painter.drawRect(printed);
    painter.restore();
}

QString bleedWidthText(const PageGeometry &page)
{
    return widest(page) > layoutTolerance ? localLengthText(widest(page)) : QString();
}

} // namespace printdialog
