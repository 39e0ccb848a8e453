// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <vector>

namespace pdekit {

/// What a panel's choices do to the printed picture: data with which the dialog's preview shows it. The parts
/// apply in the order in which they stand here, to RGB values as the printer gets them: those of the photo's
/// own color profile, or of sRGB where it has none. The default changes nothing.
///
/// It is an approximation for the screen. The print itself is made from the panel's choices.
struct Adjustment
{
    static constexpr int curvePoints = 256;
    using Curve = std::vector<double>;
    using Matrix = std::array<std::array<double, 3>, 3>;
    static constexpr Matrix unchangedColors = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

    enum class Unit {
        Dots,        ///< of the print's resolution, the lower one where they differ
        Millimeters, ///< on paper
    };

    /// 1. The curves of red, green and blue. Point i is the result for the value i of 255, from 0 (black) to
    /// 1 (white), and no point is lower than the one before. Results from -1 to 2 are kept for the matrix;
    /// what is beyond 0 and 1 after it is clipped. Empty: unchanged.
    std::array<Curve, 3> curves;
    /// 2. The colors after the curves, as a column of red, green and blue, are multiplied by this matrix; row
    /// 0 gives the new red. Elements from -4 to 4.
    Matrix matrix = unchangedColors;
    /// 3. An unsharp mask on the luminance: what differs from its mean in the surroundings is amplified. The
    /// mean is weighted by a Gaussian function; the radius is its standard deviation.
    double sharpeningRadius = 0; ///< from 0 (unchanged) to 5 millimeters, or 60 dots
    Unit sharpeningUnit = Unit::Dots;
    double sharpeningAmount = 0; ///< the added part of the difference, from 0 (unchanged) to 10
    /// 4. The surface, from 0 (gloss) to 1 (the most matte one).
    double matte = 0;

    /// A localized sentence about what the preview cannot show; empty when there is nothing to say.
    QString remark = {};

    /// Whether nothing is set: the picture stays as it is, to the last bit.
    bool isIdentity() const
    {
        const bool hasCurves =
            std::any_of(curves.begin(), curves.end(), [](const Curve &curve) { return !curve.empty(); });
        return !hasCurves && matrix == unchangedColors && (sharpeningRadius == 0 || sharpeningAmount == 0) &&
               matte == 0;
    }
};

/// An optional interface of a panel: what its choices look like in print. Without it, the dialog shows the
/// photo as if the panel changed nothing.
class AdjustmentSource
{
public:
    virtual ~AdjustmentSource() = default;

    /// For the panel's present choices. Asked after each change of a choice, with and without a view: it must
    /// be quick. An adjustment that breaks the limits above is limited, or ignored in part, and logged.
    virtual Adjustment adjustment() = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::AdjustmentSource, "org.corvel.pdekit.AdjustmentSource/1")
