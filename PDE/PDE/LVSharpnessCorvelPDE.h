// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Adjustment.h"
#include "RKTPPRBasePDEcorvel.h"

/// The panel of the printer's sharpening: the radius, a whole number, and the intensity, a number with two
/// decimals.
class LVSharpnessCorvelPDE : public RKTPPRBasePDEcorvel, public pdekit::AdjustmentSource
{
    Q_OBJECT
    Q_INTERFACES(pdekit::AdjustmentSource)

public:
    Text nibName() override;
    Text panelName() override;
    Text panelKind() const override;
    QStringList supportedPPDOptionKeys() override;
    Text ppdOptionKeyForTag(int tag) const override;
    Text ppdChoiceForTag(int cellTag) const override;
    int tagForStringValue(const Text &value) const override;

    /// An integer, except for the intensity: its slider gives two decimals without a sign, its field the text
    /// as typed.
    Text newChoiceForSender(QWidget *sender) override;
    /// Rewrites the intensity with two decimals, and offers it again.
    void controlTextDidEndEditing(QWidget *object) override;

    /// The sharpening by the chosen radius and intensity, while it is on.
    pdekit::Adjustment adjustment() override;
};
