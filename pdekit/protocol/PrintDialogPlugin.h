// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintDialogPanel.h"

#include <QtCore/QObject>

#include <memory>
#include <optional>
#include <vector>

namespace pdekit {

class Bundle;

/// A panel made by a factory; the receiver owns it.
using PanelPointer = std::unique_ptr<PrintDialogPanel>;
using PanelList = std::vector<PanelPointer>;

/// The dialog's callback object; panels made from it share its ownership.
using HostInfo = std::shared_ptr<QObject>;

/// The type identifier with which a print dialog requests panels from a printer's own plug-in.
inline constexpr char PrinterPanelsType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The principal class of a plug-in bundle: the root object of its Qt plug-in (QPluginLoader::instance).
class PrintDialogPlugin
{
public:
    virtual ~PrintDialogPlugin() = default;

    /// Called once, first. False: this is not the bundle that the plug-in was built for.
    virtual bool initWithBundle(const Bundle &bundle) = 0;
    /// The panels for a dialog of `type`, in display order; nothing for a type that the plug-in does not
    /// know.
    virtual std::optional<PanelList> PDEPanelsForTypeWithHostInfo(const QString &type,
                                                                  const HostInfo &hostInfo) = 0;
};

} // namespace pdekit

#define PrintDialogPlugin_iid "org.corvel.pdekit.PrintDialogPlugin/2"
Q_DECLARE_INTERFACE(pdekit::PrintDialogPlugin, PrintDialogPlugin_iid)
