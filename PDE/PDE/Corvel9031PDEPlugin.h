// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintDialogPlugin.h"

#include <QtCore/QObject>

/// The plug-in's principal class: checks that it is in its own bundle, and makes the panels.
class Corvel9031PDEPlugin : public QObject, public pdekit::PrintDialogPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrintDialogPlugin_iid FILE "Info.json")
    Q_INTERFACES(pdekit::PrintDialogPlugin)

public:
    bool initWithBundle(const pdekit::Bundle &bundle) override;
    std::optional<pdekit::PanelList> PDEPanelsForTypeWithHostInfo(const QString &type,
                                                                  const pdekit::HostInfo &hostInfo) override;
};
