// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintSize.h"

#include <QtCore/QPointF>
#include <QtGui/QRgb>

#include <optional>

namespace printdialog {

/// How a photo is scaled on its page. It is never distorted.
enum class Scaling {
    Fit,        ///< As large as possible without cutting anything off.
    Fill,       ///< As small as possible while it covers the area; the rest is cut off.
    ActualSize, ///< The size given by its resolution; parts that do not fit are cut off.
};

/// "fit", "fill" or "actual", for scripts and files.
QString scalingWord(Scaling scaling);
std::optional<Scaling> scalingFromWord(const QString &word);

/// A border of one color around a photo, within the size that it is printed with.
struct PhotoBorder
{
    double width = 0;           ///< In points; 0: none.
    QRgb color = 0xff'ff'ff'ff; ///< Opaque.

    static constexpr double widest = 100 * pointsPerMillimeter;

    /// "WIDTH" or "WIDTH,COLOR", such as "3mm" or "3mm,black" or "0.1in,#204080"; "none" for none. Nothing
    /// for any other text, and for a width below 0 or above the widest.
    static std::optional<PhotoBorder> fromText(const QString &text);
    QString toText() const;

    bool isThere() const { return width > 0; }
    bool operator==(const PhotoBorder &) const = default;
};

/// The requested placement of a photo on its page, or in its place on a sheet with others. A value; the
/// default is used when nothing is requested.
struct PlacementChoice
{
    Scaling scaling = Scaling::Fit;
    /// Quarter turns clockwise, 0 to 3, in addition to the turn that the page's shape causes.
    int turns = 0;
    /// Which part of a cropped photo is kept, along the sides of the upright photo: from 0 (left, top)
    /// through 0.5 (centre) to 1 (right, bottom). A photo smaller than the area is moved within it. Fit
    /// always centres, unless it is scaled further.
    QPointF crop{0.5, 0.5};
    /// The size of the print; nothing: the whole page or place.
    std::optional<PrintSize> size = std::nullopt;
    /// How much larger than by its scaling the photo is, from leastScale to mostScale.
    double scale = 1;
    PhotoBorder border = {};

    static constexpr double leastScale = 0.01;
    static constexpr double mostScale = 10;

    /// Everything but the crop, as words separated by spaces: "fill size=10x15cm scale=120 turns=1
    /// border=3mm,#000000"; what is usual is left out.
    QString toText() const;
    /// Nothing for any other text, and for values beyond the limits.
    static std::optional<PlacementChoice> fromText(const QString &text);
    /// A number in per cent; nothing for any other text, and beyond the limits.
    static std::optional<double> scaleFromText(const QString &text);

    /// Whether the photo is where it is whatever its crop says.
    bool isCentered() const { return scaling == Scaling::Fit && scale == 1; }
    bool operator==(const PlacementChoice &) const = default;
};

} // namespace printdialog
