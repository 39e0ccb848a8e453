// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelMainPDE.h"

#include "BundleIdentifier.h"
#include "SystemLog.h"

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::nibName()
{
    pdekit::systemLog(QStringLiteral("corvelPDE Wants to nibName for corvelColorAdjust???\n\n"));
    return QStringLiteral("corvelPDE");
}

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::panelName()
{
    if (!thePDEName_)
        thePDEName_ = pdeBundle_->localizedString(QStringLiteral("corvelColorAdjustments"));
    return thePDEName_;
}

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::panelKind() const
{
    return QStringLiteral(CORVEL_9031_BUNDLE_IDENTIFIER ".coloradjust");
}

// The tone settings come first here and last among the tags: this is the order of the defaults and the
// summary, the tags have that of the controls.
QStringList LVCorvelMainPDE::supportedPPDOptionKeys()
{
    if (!supportedPPDOptionKeys_) {
        supportedPPDOptionKeys_ = {
            QStringLiteral("Brightness"), QStringLiteral("Contrast"),
            QStringLiteral("Saturation"), QStringLiteral("Gamma"),
            QStringLiteral("Red"),        QStringLiteral("Green"),
            QStringLiteral("Blue"),       QStringLiteral("AdjustmentsEnabled"),
        };
    }
    return *supportedPPDOptionKeys_;
}

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::ppdOptionKeyForTag(int tag) const
{
    switch (foldedTag(tag)) {
    case 1:
        return QStringLiteral("Red");
    case 2:
        return QStringLiteral("Green");
    case 3:
        return QStringLiteral("Blue");
    case 4:
        return QStringLiteral("Brightness");
    case 5:
        return QStringLiteral("Contrast");
    case 6:
        return QStringLiteral("Saturation");
    case 7:
        return QStringLiteral("Gamma");
    case enablerTag:
        return QStringLiteral("AdjustmentsEnabled");
    default:
        return std::nullopt;
    }
}

std::optional<pdekit::PrintDialogPanel::Summary> LVCorvelMainPDE::summaryInfo()
{
    std::optional<Summary> summary = RKTPPRBasePDEcorvel::summaryInfo();
    if (useConstraintHandling_ && summary)
        summary->remove(QStringLiteral("AllowCUPS11"));
    return summary;
}
