// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureAdjuster.h"

namespace printdialog {

void PictureAdjuster::setAdjustment(const PictureAdjustment &adjustment)
{
    adjustment_ = adjustment;
}

void PictureAdjuster::setScale(const PictureScale &scale)
{
    scale_ = scale;
}

void PictureAdjuster::setLookup(std::shared_ptr<const ColorLookup> lookup)
{
    lookup_ = std::move(lookup);
}

QImage PictureAdjuster::adjusted(const QImage &picture)
{
    return picture;
}

QImage PictureAdjuster::unadjusted(const QImage &picture) const
{
    return picture;
}

ClippedTones PictureAdjuster::clippedTones(const QImage & /*picture*/, const QRect & /*part*/) const
{
    return {};
}

bool PictureAdjuster::hidesSharpening() const
{
    return false;
}

} // namespace printdialog
