// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

class QWidget;

namespace printdialog {

/// Makes another program's window the parent of a window that is shown, on a Wayland compositor with
/// xdg-foreign. Without effect where the program was built without it.
void setWaylandParent(QWidget *window, const QString &handle);

} // namespace printdialog
