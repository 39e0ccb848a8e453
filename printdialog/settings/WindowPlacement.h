// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>

namespace printdialog {

/// Stores the window's position and size between runs, in one small file in the user's configuration folder
/// (XDG_CONFIG_HOME).
class WindowPlacement
{
public:
    /// For QWidget::restoreGeometry(); empty when nothing is stored.
    static QByteArray load();
    /// Stores the result of QWidget::saveGeometry(). False: it could not be stored, and the old one stays.
    /// Not worth a message to the user.
    static bool save(const QByteArray &geometry);
};

} // namespace printdialog
