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
    NotFound,    ///< no plug-in folder holds a bundle of these names; the printer itself is fine
    BrokenInfo,  ///< its Info.json is missing, too large, not JSON, or lacks a required key
    NotLoadable, ///< its module is missing or the dynamic linker refuses it
    NotAPlugin,  ///< its module is not a print-dialog plug-in
    Refused,     ///< the plug-in was built for another bundle
    Failed,      ///< the plug-in has thrown an exception
    NoPanels,    ///< it offers no panel for this printer
};

/// A plug-in and its bundle.
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

    /// Those of the names that can be of plug-in bundles. The others are of other systems' dialog extensions,
    /// which a PPD may list as well or instead.
    static QStringList bundles(QStringList names);

    /// Loads the first of the bundles (names that bundles() returns) that is installed, from the first folder
    /// that has it. Checks its Info.json and its module's metadata before any of its code runs.
    static Result<LoadedPlugin, PluginFault> load(const QStringList &names);

    /// Makes the plug-in's panels for the callback object; at least one.
    static Result<pdekit::PanelList, PluginFault> panels(const LoadedPlugin &plugin,
                                                         const pdekit::HostInfo &hostInfo);
};

} // namespace printdialog
