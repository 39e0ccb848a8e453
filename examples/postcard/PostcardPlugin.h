// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <pdekit/Bundle.h>
#include <pdekit/PrintDialogPlugin.h>

#include <QtCore/QObject>

#include <optional>

/// The plug-in's principal class.
class PostcardPlugin : public QObject, public pdekit::PrintDialogPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrintDialogPlugin_iid FILE "Info.json")
    Q_INTERFACES(pdekit::PrintDialogPlugin)

public:
    bool initWithBundle(const pdekit::Bundle &bundle) override;
    std::optional<pdekit::PanelList> PDEPanelsForTypeWithHostInfo(const QString &type,
                                                                  const pdekit::HostInfo &hostInfo) override;

private:
    std::optional<pdekit::Bundle> bundle_;
};
