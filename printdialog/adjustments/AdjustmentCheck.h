// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PictureAdjustment.h"

namespace printdialog {

/// A panel's adjustment without what breaks the limits of pdekit::Adjustment: that is limited, or left out
/// where it has no meaning.
struct CheckedAdjustment
{
    explicit CheckedAdjustment(const pdekit::Adjustment &adjustment);

    PictureAdjustment::ColorStage colors; ///< curves of 256 points
    PictureAdjustment::Sharpening sharpening;
    double matte = 0;
    QStringList faults; ///< what was wrong, in English, for the log: parts of a sentence

private:
    pdekit::Adjustment::Curve checkedCurve(const pdekit::Adjustment::Curve &curve, const QString &name);
    pdekit::Adjustment::Matrix checkedMatrix(pdekit::Adjustment::Matrix matrix);
    PictureAdjustment::Sharpening checkedSharpening(const pdekit::Adjustment &adjustment);
    double checkedMatte(double matte);
};

/// The curve that changes nothing.
const pdekit::Adjustment::Curve &straightCurve();

} // namespace printdialog
