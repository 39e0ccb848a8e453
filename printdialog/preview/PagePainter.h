// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageView.h"
#include "PictureAdjuster.h"

#include <QtGui/QImage>

class QPainter;

namespace printdialog {

/// The pixels of an upright photo that a page is painted with. A value.
struct PagePhoto
{
    QImage whole;      ///< the entire photo; null while there are none
    QImage part;       ///< a part of it with more detail; may be null
    QRectF partCovers; ///< what the part shows, in the unit square of the photo

    /// How many pixels the longer side of `whole` should have: some steps, so that a photo that is seen a
    /// little larger is not decoded again, and the same for everyone who shows it at this size.
    /// @param seen the size in pixels that the entire photo is shown with
    static int detailFor(const QSize &seen);
    static constexpr int mostDetail = 3200;
    /// Whether the photo, of the stored size, has more detail to show than `whole` has at most.
    static bool needsPart(const QSize &seen, const QSize &stored);

    bool isSameAs(const PagePhoto &other) const
    {
        return whole.cacheKey() == other.whole.cacheKey() && part.cacheKey() == other.part.cacheKey() &&
               partCovers == other.partCovers;
    }
};

/// Paints a page as it will be printed, for the window and for files: the paper, the photo with the printer's
/// adjustments, and dimmed what is cut off of it. Keeps one picture of what is seen of the photo, in device
/// pixels, and adjusts it for each painting. One thread at a time.
class PagePainter
{
public:
    /// Which side of a comparison is seen.
    enum class Side {
        Adjusted,
        Unadjusted,
        Divided, ///< unadjusted up to the divider, adjusted from there on
    };

    struct Look
    {
        Side side = Side::Adjusted;
        double divider = 0.5;      ///< its place across what is seen of the photo, from 0 to 1
        bool marksClipped = false; ///< whether an overlay marks the tones that the adjustments clip
    };

    void setPhoto(const PagePhoto &photo);
    /// Whether the photo has no pixels yet.
    bool isEmpty() const { return photo_.whole.isNull(); }
    PictureAdjuster &adjuster() { return adjuster_; }
    const PictureAdjuster &adjuster() const { return adjuster_; }

    /// The painter's coordinates are the view's logical pixels, and its device has the view's ratio.
    void paint(QPainter &painter, const PageView &view, const Look &look);

    /// The share of the printed pixels, of those that were painted last, that the adjustments clip, from 0 to
    /// 1; 0 unless the look marks them.
    double clippedShare() const { return clippedShare_; }
    /// Where the photo is seen, in the view's logical pixels; empty without one.
    static QRectF seenPhoto(const PageView &view);
    /// The size in pixels that the entire photo has in the view, upright.
    static QSize photoPixels(const PageView &view);
    /// What is seen of the photo, in its unit square.
    static QRectF seenPart(const PageView &view);

private:
    void paintPhoto(QPainter &painter, const PageView &view, const Look &look);
    void paintLayer(QPainter &painter, const PageView &view, const QImage &layer, const QRectF &within) const;
    void markClipped(QPainter &painter, const PageView &view, const QRectF &within);
    void updateSource(const PageView &view);
    void drawWhole(QPainter &painter, const QSize &wanted, const QRectF &seen) const;

    PagePhoto photo_;
    PictureAdjuster adjuster_;
    QImage source_;       ///< what is seen of the photo, in device pixels, RGB32
    QPoint sourceCorner_; ///< of its top left pixel in the picture of the page
    PageView sourceView_; ///< what source_ was made for
    PagePhoto sourcePhoto_;
    double clippedShare_ = 0;
};

} // namespace printdialog
