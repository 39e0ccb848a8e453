// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>
#include <QtCore/QVersionNumber>

namespace printdialog {

/// What is installed of the road from other programs to this dialog.
struct PortalFrontEnd
{
    /// Whether xdg-desktop-portal is there, which programs ask to print.
    bool isInstalled = false;
    /// Its version; null when it cannot be found out.
    QVersionNumber version = {};
    /// Whether it is known to read portals.conf: from 1.17 on, or since it comes with the manual page.
    bool readsPortalsConf = false;
    /// Whether the program corvel-print-portal is, which serves this dialog to it.
    bool knowsThisDialog = false;

    /// Looks for all of them. Runs xdg-desktop-portal for its version; blocks for 5 seconds at most.
    static PortalFrontEnd find();
};

} // namespace printdialog
