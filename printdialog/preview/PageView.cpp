// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageView.h"

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace {

/// How far beyond the sheet the photo is shown on either side, at most, as a share of the longer side.
constexpr double shownCutOff = 0.15;

} // namespace

/// The sheet with what is cut off around it, in points. The same on opposite sides, so that the page does not
/// move while the photo is moved.
QRectF PageView::shown() const
{
    const QRectF sheet(QPointF(0, 0), page.size);
    if (!placement || isShared)
        return sheet;
    const double most = std::max(sheet.width(), sheet.height()) * shownCutOff;
    const double across = std::clamp((placement->target.width() - sheet.width()) / 2, 0.0, most);
    const double along = std::clamp((placement->target.height() - sheet.height()) / 2, 0.0, most);
    return sheet.adjusted(-across, -along, across, along);
}

/// Logical pixels to a point when everything is seen; 0 without room.
double PageView::fittingScale() const
{
    const QSizeF seen = isTurned() ? shown().size().transposed() : shown().size();
    const double fitting =
        std::min((room.width() - 2 * margin) / seen.width(), (room.height() - 2 * margin) / seen.height());
    return std::isfinite(fitting) ? std::max(fitting, 0.0) : 0;
}

double PageView::scale() const
{
    return zoom ? *zoom * dotsPerInch / (pointsPerInch * ratio) : fittingScale();
}

double PageView::pixelsPerInch() const
{
    return scale() * ratio * pointsPerInch;
}

double PageView::zoomOfPage() const
{
    return fittingScale() * ratio * pointsPerInch / dotsPerInch;
}

QTransform PageView::toRoom() const
{
    QTransform transform;
    const double factor = scale();
    if (!(factor > 0))
        return transform;
    const QPointF middle = zoom ? center : shown().center();
    transform.translate(room.width() / 2, room.height() / 2);
    transform.scale(factor, factor);
    if (isTurned())
        transform.rotate(-90);
    transform.translate(-middle.x(), -middle.y());
    if (!zoom)
        return transform;
    // Dots of the print on whole pixels, so that no pixel is a mixture of its neighbors.
    const QRectF fixed = placement ? placement->target : shown();
    const QPointF corner = transform.mapRect(fixed).topLeft() * ratio;
    const QPointF moved = (QPointF(corner.toPoint()) - corner) / ratio;
    return transform * QTransform::fromTranslate(moved.x(), moved.y());
}

QSize PageView::sizeWithin(int longestSide) const
{
    const QSizeF seen = isTurned() ? shown().size().transposed() : shown().size();
    return seen.scaled(longestSide, longestSide, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1));
}

PageView PageView::zoomed(double newZoom, const QPointF &kept) const
{
    PageView view = *this;
    const QPointF onPage = toRoom().inverted().map(kept);
    view.zoom = newZoom;
    view.center = onPage;
    // That point is in the middle now; move it back to where it was.
    return view.panned(kept - QPointF(room.width() / 2, room.height() / 2));
}

PageView PageView::panned(const QPointF &distance) const
{
    if (!zoom)
        return *this;
    const QTransform toPage = toRoom().inverted();
    PageView view = *this;
    view.center -= toPage.map(distance) - toPage.map(QPointF(0, 0));
    return view.limited();
}

PageView PageView::whole() const
{
    PageView view = *this;
    view.zoom.reset();
    view.center = {};
    return view;
}

/// No farther than to the edge of what there is to see; in the middle along a side that is seen entirely.
PageView PageView::limited() const
{
    PageView view = *this;
    const QRectF all = shown();
    const QSizeF seen = (isTurned() ? room.transposed() : room) / scale();
    const auto within = [](double middle, double first, double last, double length) {
        const double half = length / 2;
        return last - first <= length ? (first + last) / 2 : std::clamp(middle, first + half, last - half);
    };
    view.center = {within(center.x(), all.left(), all.right(), seen.width()),
                   within(center.y(), all.top(), all.bottom(), seen.height())};
    return view;
}

} // namespace printdialog
