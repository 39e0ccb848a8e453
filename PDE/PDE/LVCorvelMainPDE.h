// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RKTPPRBasePDEcorvel.h"

/// The panel of the color adjustments: the color balance and the tone, each a slider with a number field,
/// and the check box that turns them on.
class LVCorvelMainPDE : public RKTPPRBasePDEcorvel
{
    Q_OBJECT

public:
    Text nibName() override;
    Text panelName() override;
    Text panelKind() const override;
    QStringList supportedPPDOptionKeys() override;
    Text ppdOptionKeyForTag(int tag) const override;
    std::optional<Summary> summaryInfo() override;
};
