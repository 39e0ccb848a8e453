// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

class QWidget;

namespace printdialog {

/// Makes another program's window the parent of a window that is not shown yet, as far as the platform
/// allows.
/// @param identifier "x11:" and the window's number in hexadecimal digits; others are ignored
void setParentWindow(QWidget *window, const QString &identifier);

} // namespace printdialog
