// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagePainter.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace {

constexpr double dimmed = 0.3;
constexpr QRectF unitSquare(0, 0, 1, 1);

QRectF sheetOf(const PageView &view)
{
    return {QPointF(0, 0), view.page.size};
}

QRectF roomOf(const PageView &view)
{
    return {QPointF(0, 0), view.room};
}

QTransform photoToRoom(const PageView &view)
{
    return view.placement->toPage() * view.toRoom();
}

QTransform photoToPixels(const PageView &view)
{
    return view.placement->toPage() * view.toPixels();
}

} // namespace

int PagePhoto::detailFor(const QSize &seen)
{
    constexpr int first = 800; // enough for the window as it opens
    int detail = first;
    while (detail < std::max(seen.width(), seen.height()) && detail < mostDetail)
        detail *= 2;
    return detail;
}

bool PagePhoto::needsPart(const QSize &seen, const QSize &stored)
{
    return std::min(std::max(seen.width(), seen.height()), std::max(stored.width(), stored.height())) >
           mostDetail;
}

QRectF PagePainter::seenPhoto(const PageView &view)
{
    return view.placement ? photoToRoom(view).mapRect(unitSquare) & roomOf(view) : QRectF();
}

QSize PagePainter::photoPixels(const PageView &view)
{
    if (!view.placement)
        return {};
    const QTransform transform = photoToPixels(view);
    const QSizeF size(std::hypot(transform.m11(), transform.m12()),
                      std::hypot(transform.m21(), transform.m22()));
    return size.toSize().expandedTo(QSize(1, 1));
}

QRectF PagePainter::seenPart(const PageView &view)
{
    if (!view.placement)
        return {};
    bool isInvertible = false;
    const QTransform toPhoto = photoToRoom(view).inverted(&isInvertible);
    return isInvertible ? toPhoto.mapRect(roomOf(view)) & unitSquare : QRectF();
}

void PagePainter::setPhoto(const PagePhoto &photo)
{
    photo_ = photo;
    if (photo.whole.isNull()) {
        source_ = {};
        sourcePhoto_ = {};
    }
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
    if (!look.marksClipped || photo_.whole.isNull())
        clippedShare_ = 0;
    if (view.placement && !photo_.whole.isNull())
        paintPhoto(painter, view, look);
    if (printed != sheet) {
        painter.setPen(QPen(QColor(120, 120, 120, 160), 0, Qt::DashLine));
        painter.drawRect(printed);
    }
    if (view.placement && !photo_.whole.isNull() && !sheet.contains(toRoom.mapRect(view.placement->target))) {
        painter.setPen(QPen(QColor(90, 90, 90), 1));
        painter.drawRect(sheet);
    }
}

void PagePainter::paintPhoto(QPainter &painter, const PageView &view, const Look &look)
{
    updateSource(view);
    if (source_.isNull())
        return;
    adjuster_.setScale({view.pixelsPerInch(), view.dotsPerInch});
    const QRectF seen = seenPhoto(view);
    QRectF unadjusted = look.side == Side::Unadjusted ? seen : QRectF();
    QRectF adjusted = look.side == Side::Unadjusted ? QRectF() : seen;
    if (look.side == Side::Divided) {
        // On a whole pixel, so that the two sides do not mix.
        const double across =
            std::round((seen.left() + look.divider * seen.width()) * view.ratio) / view.ratio;
        unadjusted = QRectF(seen.topLeft(), QPointF(across, seen.bottom()));
        adjusted = QRectF(QPointF(across, seen.top()), seen.bottomRight());
    }
    if (!unadjusted.isEmpty())
        paintLayer(painter, view, adjuster_.unadjusted(source_), unadjusted);
    if (adjusted.isEmpty())
        return;
    paintLayer(painter, view, adjuster_.adjusted(source_), adjusted);
    if (look.marksClipped)
        markClipped(painter, view, adjusted);
}

/// Paints the printed part as it is, and dims what is cut off, on the paper and around it.
void PagePainter::paintLayer(QPainter &painter, const PageView &view, const QImage &layer,
                             const QRectF &within) const
{
    const QRectF printed = view.toRoom().mapRect(view.page.printed());
    const auto draw = [&] {
        painter.scale(1 / view.ratio, 1 / view.ratio);
        painter.drawImage(sourceCorner_, layer);
    };
    if (!printed.contains(within)) {
        QPainterPath around;
        around.addRect(within | printed);
        around.addRect(printed);
        painter.save();
        painter.setClipRect(within);
        painter.setClipPath(around, Qt::IntersectClip);
        painter.setOpacity(dimmed);
        draw();
        painter.restore();
    }
    painter.save();
    painter.setClipRect(within & printed);
    draw();
    painter.restore();
}

void PagePainter::markClipped(QPainter &painter, const PageView &view, const QRectF &within)
{
    const QRectF printed = view.toRoom().mapRect(view.page.printed()) & within;
    const QRect pixels = QRectF(printed.topLeft() * view.ratio, printed.size() * view.ratio).toAlignedRect();
    const QRect part = pixels.translated(-sourceCorner_) & source_.rect();
    if (part.isEmpty())
        return;
    const ClippedTones clipped = adjuster_.clippedTones(source_, part);
    clippedShare_ = static_cast<double>(clipped.pixels) / (qint64(part.width()) * part.height());
    if (clipped.pixels == 0)
        return;
    painter.save();
    painter.setClipRect(printed);
    painter.scale(1 / view.ratio, 1 / view.ratio);
    painter.drawImage(sourceCorner_, clipped.overlay);
    painter.restore();
}

/// Draws what is seen of the whole photo into its unit square. QPainter scales well down to one half; below
/// that it skips pixels, and edges shimmer.
/// @param wanted the size of the whole photo in pixels
void PagePainter::drawWhole(QPainter &painter, const QSize &wanted, const QRectF &seen) const
{
    constexpr double wellScaled = 0.6;
    const QImage &whole = photo_.whole;
    if (wanted.width() > whole.width() * wellScaled) {
        painter.drawImage(unitSquare, whole);
        return;
    }
    const QTransform toPixels = QTransform::fromScale(whole.width(), whole.height());
    constexpr int border = 4;           // that scaling mixes in
    constexpr double mostlySeen = 0.25; // then all of it, so that it looks the same wherever it ends
    QRect part = whole.rect();
    if (seen.width() * seen.height() < mostlySeen)
        part &= toPixels.mapRect(seen).toAlignedRect().adjusted(-border, -border, border, border);
    const QSize size(std::max(1, qRound(double(part.width()) * wanted.width() / whole.width())),
                     std::max(1, qRound(double(part.height()) * wanted.height() / whole.height())));
    const QImage scaled = (part == whole.rect() ? whole : whole.copy(part))
                              .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(toPixels.inverted().mapRect(QRectF(part)), scaled);
}

/// Scales what is seen to device pixels, once until another part is seen.
void PagePainter::updateSource(const PageView &view)
{
    if (!source_.isNull() && sourceView_ == view && sourcePhoto_.isSameAs(photo_))
        return;
    const QRectF seen = seenPhoto(view);
    const QRect pixels = QRectF(seen.topLeft() * view.ratio, seen.size() * view.ratio).toAlignedRect();
    sourceView_ = view;
    sourcePhoto_ = photo_;
    sourceCorner_ = pixels.topLeft();
    if (source_.size() != pixels.size())
        source_ = pixels.isEmpty() ? QImage() : QImage(pixels.size(), QImage::Format_RGB32);
    if (source_.isNull())
        return;
    source_.fill(Qt::white); // which is what a transparent photo gets in print
    const QTransform toSource =
        photoToPixels(view) * QTransform::fromTranslate(-sourceCorner_.x(), -sourceCorner_.y());
    QPainter painter(&source_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(toSource);
    drawWhole(painter, photoPixels(view), seenPart(view));
    if (!photo_.part.isNull())
        painter.drawImage(photo_.partCovers, photo_.part);
}

} // namespace printdialog
