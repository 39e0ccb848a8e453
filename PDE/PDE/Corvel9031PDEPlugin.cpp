// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Corvel9031PDEPlugin.h"

#include "Bundle.h"
#include "BundleIdentifier.h"
#include "LVCorvelLaminationPDE.h"
#include "LVCorvelMainPDE.h"
#include "LVSharpnessCorvelPDE.h"
#include "SystemLog.h"

bool Corvel9031PDEPlugin::initWithBundle(const pdekit::Bundle &bundle)
{
    const QString expected = QStringLiteral(CORVEL_9031_BUNDLE_IDENTIFIER);
    const bool isOurs = bundle.identifier() == expected;
    pdekit::systemLog(isOurs ? QStringLiteral("INIT: loading bundle with id \"%1\"").arg(bundle.identifier())
                             : QStringLiteral("ERROR: bad bundle id \"%1\" not equal to \"%2\"")
                                   .arg(bundle.identifier(), expected));
    return isOurs;
}

std::optional<pdekit::PanelList>
Corvel9031PDEPlugin::PDEPanelsForTypeWithHostInfo(const QString &type, const pdekit::HostInfo &hostInfo)
{
    if (type != QLatin1String(pdekit::PrinterPanelsType))
        return std::nullopt;
    pdekit::PanelPointer lamination = RKTPPRBasePDEcorvel::make<LVCorvelLaminationPDE>(hostInfo);
    pdekit::PanelPointer sharpness = RKTPPRBasePDEcorvel::make<LVSharpnessCorvelPDE>(hostInfo);
    pdekit::PanelPointer colorAdjustment = RKTPPRBasePDEcorvel::make<LVCorvelMainPDE>(hostInfo);

    // The last one made is offered first. A panel that cannot be made ends the list: the panels after it are
    // not offered.
    pdekit::PanelList panels;
    for (pdekit::PanelPointer *panel : {&colorAdjustment, &sharpness, &lamination}) {
        if (!*panel)
            break;
        panels.push_back(std::move(*panel));
    }
    return panels;
}
