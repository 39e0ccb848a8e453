// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RKTPPRBasePDEcorvel.h"

/// The base of panels whose option controls are all radio groups; other controls are ignored.
class RKTPPRMatrixPDEcorvel : public RKTPPRBasePDEcorvel
{
    Q_OBJECT

public:
    void updateControlWithValue(QWidget *control, const Text &value) override;
    Text newChoiceForSender(QWidget *sender) override;
    /// Sets an empty tool tip, whatever the argument.
    void setToolTipFromSender(const QString &toolTip, QWidget *sender) override;
};
