// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>

namespace printdialog {

/// Where the window was and how large, from one time to the next: one small file in the user's
/// configuration folder (the desktop's base directories, XDG_CONFIG_HOME).
class WindowPlacement
{
public:
    /// As QWidget::restoreGeometry() takes it; empty when nothing is kept.
    static QByteArray load();
    /// What QWidget::saveGeometry() has made. False: it could not be kept, and what was kept before stays. No
    /// reason to trouble the user.
    static bool save(const QByteArray &geometry);
};

} // namespace printdialog
