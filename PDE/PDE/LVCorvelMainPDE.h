// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Adjustment.h"
#include "RKTPPRBasePDEcorvel.h"

/// The panel of the color adjustments: the color balance and the tone, each a slider with a number field,
/// and the check box that turns them on.
class LVCorvelMainPDE : public RKTPPRBasePDEcorvel, public pdekit::AdjustmentSource
{
    Q_OBJECT
    Q_INTERFACES(pdekit::AdjustmentSource)

public:
    Text nibName() override;
    Text panelName() override;
    Text panelKind() const override;
    QStringList supportedPPDOptionKeys() override;
    Text ppdOptionKeyForTag(int tag) const override;
    std::optional<Summary> summaryInfo() override;

    /// Nothing changes while the adjustments are off. Otherwise, with v from -25 to 25 the number of each
    /// option and x from 0 to 1 a color component:
    ///
    ///     Gamma        x ^ (1.35 ^ (-v / 25))
    ///     Contrast     0.5 + (x - 0.5) * 1.4 ^ (v / 25)
    ///     Brightness   x + 1.8 v / 255
    ///     Saturation   l + (x - l) * 2.5 ^ (v / 25), where l is the luma
    ///     Red, Green, Blue   x + 0.008 l * (the component's v - the mean of the three v by the luma weights)
    ///
    /// in this order. The luma weights are those of Rec. ITU-R BT.709, applied to the values as they are
    /// encoded. So the balance leaves the luma alone, and three equal numbers change nothing. A slider's
    /// opposite number takes back what the number does, as long as nothing is clipped; up to 5, no slider
    /// alone clips a gray from 10 to 245. How much a slider does at most was chosen by eye within these
    /// limits.
    pdekit::Adjustment adjustment() override;
};
