// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorLookup.h"
#include "ColorTables.h"
#include "MatteSurface.h"
#include "PictureAdjustment.h"
#include "UnsharpMask.h"

#include <QtGui/QImage>

#include <array>
#include <optional>

namespace printdialog {

class BandThreads;

/// The scale of a picture of a print.
struct PictureScale
{
    double pixelsPerInch = 300; ///< of the picture, on the paper
    double dotsPerInch = 300;   ///< of the print

    bool operator==(const PictureScale &) const = default;
};

/// The tones of a picture that an adjustment clips: those of a color component that would go beyond black or
/// white and was not there before.
struct ClippedTones
{
    /// Of the picture's size: transparent where nothing is clipped. Premultiplied. A component beyond white
    /// is shown in reds, one beyond black in blues, in squares of two tones, which stand out from any other.
    QImage overlay;
    qint64 pixels = 0; ///< how many are clipped
};

/// Applies an adjustment to a picture of a print, at the speed of a slider that is dragged. Keeps what it has
/// worked out as long as nothing it depends on has changed. One thread at a time.
class PictureAdjuster
{
public:
    PictureAdjuster();
    ~PictureAdjuster();
    PictureAdjuster(const PictureAdjuster &) = delete;
    PictureAdjuster &operator=(const PictureAdjuster &) = delete;

    void setAdjustment(const PictureAdjustment &adjustment);
    const PictureAdjustment &adjustment() const { return adjustment_; }
    void setScale(const PictureScale &scale);
    /// The conversion for the screen; null for none.
    void setLookup(std::shared_ptr<const ColorLookup> lookup);

    /// The picture (RGB32) adjusted and converted; the picture itself when there is nothing to do. Of the
    /// same size; valid until the next call. Allocates nothing while the size stays, with one sharpening at
    /// most, provided that the caller no longer holds the last result.
    QImage adjusted(const QImage &picture);
    /// The picture without the adjustment, converted.
    QImage unadjusted(const QImage &picture);
    /// What the colors of the adjustment clip in this part of the picture.
    ClippedTones clippedTones(const QImage &picture, const QRect &part) const;
    /// Whether there is a sharpening that is too fine to be shown at this scale.
    bool hidesSharpening() const;

private:
    void updateMasks();
    /// From one picture into another, with all that is done between two masks: the colors before the first
    /// one, surface and lookup after the last one.
    void sweep(const QImage &from, const UnsharpMask *mask, bool isFirst, bool isLast, QImage &to);
    void readRow(const QImage &from, int row, QRgb *to) const;

    PictureAdjustment adjustment_;
    PictureScale scale_;
    std::shared_ptr<const ColorLookup> lookup_;

    std::vector<ColorTables> colors_;
    std::vector<UnsharpMask> masks_; ///< those that can be seen at this scale
    std::optional<MatteSurface> surface_;
    std::unique_ptr<BandThreads> threads_;
    std::array<UnsharpMask::Scratch, 2> scratch_; ///< of each thread
    QImage result_;
    qint64 resultOf_ = 0; ///< the cache key of the picture that result_ was made from; 0 for none
    QImage plain_;        ///< the latest picture that was only converted
    qint64 plainOf_ = 0;
};

} // namespace printdialog
