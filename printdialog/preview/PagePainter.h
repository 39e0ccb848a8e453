// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PictureAdjuster.h"
#include "PrintPicture.h"
#include "PrintSheet.h"

#include <QtGui/QImage>
#include <QtGui/QPainterPath>

#include <vector>

class QPainter;

namespace printdialog {

/// Paints a sheet as it will be printed, for the window and for files: the paper, its photos in their places
/// with the printer's adjustments, their borders and captions, the cut marks, and dimmed what is cut off of
/// the current photo. Keeps a picture of what is seen of each photo, in device pixels, and adjusts it for
/// each painting. One thread at a time.
class PagePainter
{
public:
    /// Which side of a comparison is seen.
    enum class Side {
        Adjusted,
        Unadjusted,
        Divided, ///< of the current photo: unadjusted up to the divider, adjusted from there on
    };

    struct Look
    {
        Side side = Side::Adjusted;
        double divider = 0.5;      ///< its place across what is seen of the current photo, from 0 to 1
        bool marksClipped = false; ///< whether an overlay marks the tones that the adjustments clip in it
        bool outlinesArea = true;  ///< whether the printable area is outlined
        bool showsCutOff = false;  ///< whether what is cut off of it covers its neighbors
    };

    /// What lies on the page. The photos have no pixels until setPhoto() is called, but for those that have
    /// been there before at the same index.
    /// @param current the index of the current photo; -1 for none
    void setSheet(const PrintSheet &sheet, qsizetype current);
    /// A photo without pixels is not painted.
    void setPhoto(qsizetype index, const PagePhoto &photo);
    /// Whether the current photo has no pixels yet.
    bool isEmpty() const;

    void setAdjustment(const PictureAdjustment &adjustment);
    const PictureAdjustment &adjustment() const { return adjuster_.adjustment(); }
    /// Whether there is a sharpening that is too fine to be seen, as painted last.
    bool hidesSharpening() const { return adjuster_.hidesSharpening(); }

    /// The painter's coordinates are the view's logical pixels, and its device has the view's ratio. The
    /// view's placement is the current photo's.
    void paint(QPainter &painter, const PageView &view, const Look &look);

    /// The share of the current photo's printed pixels, of those that were painted last, that the adjustments
    /// clip, from 0 to 1; 0 unless the look marks them.
    double clippedShare() const { return clippedShare_; }
    /// Where the current photo is seen, in the view's logical pixels; empty without one.
    static QRectF seenPhoto(const PageView &view);
    /// The size in pixels that the entire current photo has in the view, upright.
    static QSize photoPixels(const PageView &view);
    /// What is seen of the current photo, in its unit square.
    static QRectF seenPart(const PageView &view);

private:
    /// A photo in its place.
    struct Print
    {
        PhotoPlacement placement;
        QStringList caption;
        QRectF captionArea;
        QPainterPath captionOutline; ///< in points
        PagePhoto photo;
        PrintPicture picture;
        QImage shown; ///< the picture as it was painted last, where there are several prints
        qint64 shownOf = 0;
        int shownState = 0;
        std::shared_ptr<const ColorLookup> shownLookup;
    };

    void updatePictures(const PageView &view);
    QImage layerOf(Print &print, bool isAdjusted);
    void drawPrint(QPainter &painter, const PageView &view, const Look &look, Print &print);
    void drawCutOff(QPainter &painter, const PageView &view, const Look &look);
    void drawPhoto(QPainter &painter, const PageView &view, const Look &look, Print &print,
                   const QRegion &region);
    void drawMarks(QPainter &painter, const PageView &view) const;
    void markClipped(QPainter &painter, Print &print, const QRect &within);

    std::vector<Print> prints_;
    qsizetype current_ = -1;
    QList<QLineF> cutMarks_;
    PictureAdjuster adjuster_;
    PictureScale scale_;
    int state_ = 0; ///< another one whenever the adjustment or the scale is
    double clippedShare_ = 0;
};

} // namespace printdialog
