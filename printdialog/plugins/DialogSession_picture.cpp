// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "GuardedPanel.h"

namespace printdialog {

std::optional<PictureAdjustment> DialogSession::adjustment()
{
    QList<pdekit::Adjustment> adjustments;
    for (const auto &panel : panels_) {
        if (const auto adjustment = panel->adjustment())
            adjustments += *adjustment;
    }
    if (adjustments.isEmpty())
        return std::nullopt;
    return PictureAdjustment::of(adjustments);
}

double DialogSession::dotsPerInch() const
{
    return 300;
}

QByteArray DialogSession::paperProfile() const
{
    return {};
}

} // namespace printdialog
