// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagePainter.h"

#include "CaptionOutline.h"

#include <QtGui/QPainter>
#include <QtGui/QRegion>

#include <algorithm>
#include <cmath>
#include <utility>

namespace printdialog {

namespace {

constexpr double dimmed = 0.3;

QRectF sheetOf(const PageView &view)
{
    return {QPointF(0, 0), view.page.size};
}

QRectF roomOf(const PageView &view)
{
    return {QPointF(0, 0), view.room};
}

/// What of the current photo is shown: all of it, since what is cut off is dimmed.
QRectF currentExtent(const PageView &view)
{
    return view.placement ? view.placement->target : QRectF();
}

/// An area of the page in whole device pixels, so that each edge is sharp and within half a pixel of its
/// place.
QRect wholePixels(const PageView &view, const QRectF &area)
{
    const QRectF exact = view.toPixels().mapRect(area);
    const QPoint first(qRound(exact.left()), qRound(exact.top()));
    const QPoint end(qRound(exact.right()), qRound(exact.bottom()));
    return {first, QSize(end.x() - first.x(), end.y() - first.y())};
}

} // namespace

QRectF PagePainter::seenPhoto(const PageView &view)
{
    if (!view.placement)
        return {};
    const QRectF extent = view.isShared ? view.placement->seen(view.page) : view.placement->target;
    return view.toRoom().mapRect(extent) & roomOf(view);
}

QSize PagePainter::photoPixels(const PageView &view)
{
    return view.placement ? printdialog::photoPixels(view, *view.placement) : QSize();
}

QRectF PagePainter::seenPart(const PageView &view)
{
    return view.placement ? printdialog::seenPart(view, *view.placement, currentExtent(view)) : QRectF();
}

void PagePainter::setSheet(const PrintSheet &sheet, qsizetype current)
{
    prints_.resize(static_cast<std::size_t>(sheet.photos.size()));
    for (std::size_t i = 0; i < prints_.size(); ++i) {
        const SheetPhoto &laid = sheet.photos.at(static_cast<qsizetype>(i));
        Print &print = prints_[i];
        print.placement = laid.placement;
        if (print.caption == laid.caption && print.captionArea == laid.captionArea)
            continue;
        print.caption = laid.caption;
        print.captionArea = laid.captionArea;
        print.captionOutline = captionOutline(laid.caption, laid.captionArea);
    }
    current_ = current;
    cutMarks_ = sheet.cutMarks;
}

void PagePainter::setPhoto(qsizetype index, const PagePhoto &photo)
{
    Print &print = prints_.at(static_cast<std::size_t>(index));
    print.photo = photo;
    if (photo.whole.isNull()) {
        print.picture = {};
        print.shown = {};
    }
}

bool PagePainter::isEmpty() const
{
    return current_ < 0 || prints_.at(static_cast<std::size_t>(current_)).photo.whole.isNull();
}

void PagePainter::setAdjustment(const PictureAdjustment &adjustment)
{
    adjuster_.setAdjustment(adjustment);
    ++state_;
}

void PagePainter::paint(QPainter &painter, const PageView &view, const Look &look)
{
    const QTransform toRoom = view.toRoom();
    const QRectF sheet = toRoom.mapRect(sheetOf(view));
    const QRectF printed = toRoom.mapRect(view.page.printed());
    painter.setRenderHint(QPainter::Antialiasing);
    // The shadow falls downwards on the screen, however the page is turned. Where the sheet is all there is
    // to see, it has none: a part of a pixel may be left over at the edges.
    const bool isAlone = sheet.adjusted(-1, -1, 1, 1).contains(roomOf(view));
    for (int i = isAlone ? 0 : 4; i > 0; --i)
        painter.fillRect(sheet.adjusted(-i, -i, i, i + 2), QColor(0, 0, 0, 18));
    painter.fillRect(sheet, Qt::white); // paper is white in every theme
    clippedShare_ = look.marksClipped && !isEmpty() ? clippedShare_ : 0;
    if (!view.page.printed().isEmpty() && !prints_.empty()) {
        updatePictures(view);
        painter.save();
        painter.scale(1 / view.ratio, 1 / view.ratio);
        if (!look.showsCutOff)
            drawCutOff(painter, view, look);
        for (Print &print : prints_)
            drawPrint(painter, view, look, print);
        if (look.showsCutOff)
            drawCutOff(painter, view, look);
        painter.restore();
        drawMarks(painter, view);
    }
    if (look.outlinesArea && printed != sheet) {
        painter.setPen(QPen(QColor(120, 120, 120, 160), 0, Qt::DashLine));
        painter.drawRect(printed);
    }
    if (view.placement && !view.isShared && !isEmpty() &&
        !sheet.contains(toRoom.mapRect(view.placement->target))) {
        painter.setPen(QPen(QColor(90, 90, 90), 1));
        painter.drawRect(sheet);
    }
}

void PagePainter::updatePictures(const PageView &view)
{
    const PictureScale scale = {view.pixelsPerInch(), view.dotsPerInch};
    if (scale != scale_)
        ++state_;
    scale_ = scale;
    adjuster_.setScale(scale);
    ScaledPhotos scaled;
    for (std::size_t i = 0; i < prints_.size(); ++i) {
        Print &print = prints_[i];
        const QRectF extent =
            std::cmp_equal(i, current_) ? currentExtent(view) : print.placement.seen(view.page);
        if (!print.photo.whole.isNull())
            print.picture.update(view, print.placement, extent, print.photo, scaled);
    }
}

/// The print's picture, adjusted or not, in the colors shown. Prints that share a sheet keep theirs, since
/// the adjuster keeps only the last one.
QImage PagePainter::layerOf(Print &print, bool isAdjusted)
{
    const QImage &picture = print.picture.image();
    if (!isAdjusted || prints_.size() == 1) {
        adjuster_.setLookup(print.photo.lookup);
        return isAdjusted ? adjuster_.adjusted(picture) : adjuster_.unadjusted(picture);
    }
    if (print.shown.isNull() || print.shownOf != picture.cacheKey() || print.shownState != state_ ||
        print.shownLookup != print.photo.lookup) {
        print.shown = {}; // so that its memory is used again
        adjuster_.setLookup(print.photo.lookup);
        print.shown = adjuster_.adjusted(picture);
        print.shownOf = picture.cacheKey();
        print.shownState = state_;
        print.shownLookup = print.photo.lookup;
    }
    return print.shown;
}

void PagePainter::drawPrint(QPainter &painter, const PageView &view, const Look &look, Print &print)
{
    const QRect printed = wholePixels(view, view.page.printed());
    const QRect photo = wholePixels(view, print.placement.seen(view.page));
    if (print.placement.border.isThere())
        painter.fillRect(wholePixels(view, print.placement.outline) & printed,
                         QColor(print.placement.border.color));
    if (!print.picture.image().isNull())
        return drawPhoto(painter, view, look, print, photo);
    constexpr QColor coming(238, 238, 238);
    if (prints_.size() > 1 && print.photo.whole.isNull())
        painter.fillRect(photo, coming);
}

/// Dims what is cut off of the current photo, on the paper and around it.
void PagePainter::drawCutOff(QPainter &painter, const PageView &view, const Look &look)
{
    if (isEmpty() || !view.placement)
        return;
    const QRegion cutOff =
        QRegion(wholePixels(view, currentExtent(view))) - wholePixels(view, view.placement->seen(view.page));
    if (cutOff.isEmpty())
        return;
    Look plain = look;
    plain.marksClipped = false;
    painter.setOpacity(dimmed);
    drawPhoto(painter, view, plain, prints_.at(static_cast<std::size_t>(current_)), cutOff);
    painter.setOpacity(1);
}

/// In device pixels.
void PagePainter::drawPhoto(QPainter &painter, const PageView &view, const Look &look, Print &print,
                            const QRegion &region)
{
    if (print.picture.image().isNull())
        return;
    const bool isCurrent = !isEmpty() && &print == &prints_.at(static_cast<std::size_t>(current_));
    const QRect all(print.picture.corner(), print.picture.image().size());
    QRect unadjusted = look.side == Side::Unadjusted ? all : QRect();
    QRect adjusted = look.side == Side::Unadjusted ? QRect() : all;
    if (look.side == Side::Divided && isCurrent) {
        const QRectF seen = seenPhoto(view);
        // On a whole pixel, so that the two sides do not mix.
        const int across = qRound((seen.left() + look.divider * seen.width()) * view.ratio);
        unadjusted.setRect(all.left(), all.top(), across - all.left(), all.height());
        adjusted.setLeft(across);
    }
    const auto draw = [&](const QRect &within, bool isAdjusted) {
        const QRegion shown = region & within;
        if (shown.isEmpty())
            return;
        painter.setClipRegion(shown);
        painter.drawImage(print.picture.corner(), layerOf(print, isAdjusted));
    };
    draw(unadjusted, false);
    draw(adjusted, true);
    if (look.marksClipped && isCurrent)
        markClipped(painter, print, region.boundingRect() & adjusted);
    painter.setClipping(false);
}

void PagePainter::markClipped(QPainter &painter, Print &print, const QRect &within)
{
    const QRect part = within.translated(-print.picture.corner()) & print.picture.image().rect();
    if (part.isEmpty())
        return;
    const ClippedTones clipped = adjuster_.clippedTones(print.picture.image(), part);
    clippedShare_ = static_cast<double>(clipped.pixels) / (qint64(part.width()) * part.height());
    if (clipped.pixels == 0)
        return;
    painter.setClipRect(within);
    painter.drawImage(print.picture.corner(), clipped.overlay);
}

/// Captions and cut marks, as in the PDF.
void PagePainter::drawMarks(QPainter &painter, const PageView &view) const
{
    constexpr double lineWidth = 0.25; // points
    painter.save();
    painter.setTransform(view.toRoom(), true);
    for (const Print &print : prints_)
        painter.fillPath(print.captionOutline, Qt::black);
    // A line is at least as wide as a pixel, so that it is seen.
    const double pixel = pointsPerInch / view.pixelsPerInch();
    painter.setPen(QPen(Qt::black, std::max(lineWidth, pixel), Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(cutMarks_);
    painter.restore();
}

} // namespace printdialog
