// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Adjustment.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <vector>

namespace printdialog {

/// What the panels' adjustments do together to a picture, checked and joined. A value; the default changes
/// nothing. The parts apply in the order colors, sharpenings, matte (see pdekit::Adjustment).
class PictureAdjustment
{
public:
    /// Curves, then a matrix. Curves have 256 points each, also where they change nothing.
    struct ColorStage
    {
        std::array<pdekit::Adjustment::Curve, 3> curves;
        pdekit::Adjustment::Matrix matrix;

        bool operator==(const ColorStage &) const = default;
    };

    struct Sharpening
    {
        double radius = 0; ///< above 0
        pdekit::Adjustment::Unit unit = pdekit::Adjustment::Unit::Dots;
        double amount = 0; ///< above 0

        bool operator==(const Sharpening &) const = default;
    };

    /// Joins the panels' adjustments, in their order. What breaks the limits of pdekit::Adjustment is
    /// limited, or left out where it has no meaning; `problems`, when given, receives a sentence for the log
    /// about each such adjustment.
    static PictureAdjustment of(const QList<pdekit::Adjustment> &adjustments,
                                QStringList *problems = nullptr);

    const std::vector<ColorStage> &colors() const { return colors_; }
    const std::vector<Sharpening> &sharpenings() const { return sharpenings_; }
    double matte() const { return matte_; }
    /// The panels' sentences about what cannot be shown.
    const QStringList &remarks() const { return remarks_; }

    bool operator==(const PictureAdjustment &) const = default;

private:
    std::vector<ColorStage> colors_;
    std::vector<Sharpening> sharpenings_;
    double matte_ = 0;
    QStringList remarks_;
};

} // namespace printdialog
