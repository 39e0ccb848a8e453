// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGui/QColor>
#include <QtGui/QPalette>

namespace printdialog {

/// The window's own color with a share of `tint`: it reads well in light and in dark themes.
QColor tinted(const QPalette &palette, const QColor &tint, double share = 0.18);

} // namespace printdialog
