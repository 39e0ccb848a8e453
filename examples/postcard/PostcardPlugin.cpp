// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PostcardPlugin.h"

#include "BorderPanel.h"

bool PostcardPlugin::initWithBundle(const pdekit::Bundle &bundle)
{
    bundle_ = bundle;
    return bundle.identifier() == QLatin1String("org.corvel.examples.Postcard");
}

std::optional<pdekit::PanelList>
PostcardPlugin::PDEPanelsForTypeWithHostInfo(const QString &type, const pdekit::HostInfo &hostInfo)
{
    if (type != QLatin1String(pdekit::PrinterPanelsType))
        return std::nullopt;
    pdekit::PanelList panels;
    panels.push_back(std::make_unique<BorderPanel>(*bundle_, hostInfo));
    return panels;
}

#include "moc_PostcardPlugin.cpp"
