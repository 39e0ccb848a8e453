// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

class QWidget;

namespace printdialog {

/// Shows a window with another program's window as its parent, as far as the platform allows.
/// @param identifier "x11:" and the window's number in hexadecimal digits, or "wayland:" and the handle under
/// which it is exported (xdg-foreign); without a parent for others
void showWithParent(QWidget *window, const QString &identifier);

} // namespace printdialog
