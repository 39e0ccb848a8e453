// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorLookup.h"

#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <memory>

namespace printdialog {

/// The pixels of an upright photo that a page is painted with. A value.
struct PagePhoto
{
    QImage whole;                                   ///< the entire photo; null while there are none
    QImage part;                                    ///< a part of it with more detail; may be null
    QRectF partCovers;                              ///< what the part shows, in the unit square of the photo
    std::shared_ptr<const ColorLookup> lookup = {}; ///< from its colors to those shown; null for none

    static constexpr int leastDetail = 200; ///< of a photo among many
    static constexpr int usualDetail = 800; ///< enough for a photo alone in the window as it opens
    static constexpr int mostDetail = 3200;

    /// How many pixels the longer side of `whole` should have: some steps, so that a photo that is seen a
    /// little larger is not decoded again, and the same for everyone who shows it at this size.
    /// @param seen the size in pixels that the entire photo is shown with
    static int detailFor(const QSize &seen, int least = usualDetail);
    /// Whether the photo, of the stored size, has more detail to show than `whole` has at most.
    static bool needsPart(const QSize &seen, const QSize &stored);

    /// Whether the pixels are the same.
    bool isSameAs(const PagePhoto &other) const
    {
        return whole.cacheKey() == other.whole.cacheKey() && part.cacheKey() == other.part.cacheKey() &&
               partCovers == other.partCovers;
    }
};

} // namespace printdialog
