// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Bundle.h"
#include "PrintDialogPlugin.h"
#include "Result.h"

#include <QtCore/QStringList>

namespace printdialog {

/// Why a plug-in offers no panels.
enum class PluginFault {
    NotFound,    ///< no plug-in folder holds a bundle of any of the names; nothing is wrong with the printer
    BrokenInfo,  ///< its Info.json is missing, too large, not JSON, or lacks what a bundle needs
    NotLoadable, ///< its module is missing or the dynamic linker refuses it
    NotAPlugin,  ///< its module is not a print-dialog plug-in
    Refused,     ///< the plug-in does not take the bundle for its own
    Failed,      ///< the plug-in has thrown something
    NoPanels,    ///< it offers no panel for this printer
};

/// A plug-in in its bundle.
struct LoadedPlugin
{
    pdekit::Bundle bundle;
    pdekit::PrintDialogPlugin *plugin; ///< Lives as long as the process: a plug-in is never unloaded.
};

/// Finds and loads plug-in bundles. Main thread only.
class PluginLoader
{
public:
    /// The folders that are searched, in order: those named by the environment variable CORVEL_PDE_PATH
    /// (separated by colons; for development), then the installed one.
    static QStringList folders();

    /// Loads the first of the bundles (plain file names) that is installed, from the first folder that has
    /// it. Its Info.json is checked, and the metadata of its module, before any of its code runs. A PPD may
    /// name extensions of other systems' dialogs as well, which are not looked for.
    static Result<LoadedPlugin, PluginFault> load(const QStringList &names);

    /// The plug-in's panels over the callback object; at least one.
    static Result<pdekit::PanelList, PluginFault> panels(const LoadedPlugin &plugin,
                                                         const pdekit::HostInfo &hostInfo);
};

} // namespace printdialog
