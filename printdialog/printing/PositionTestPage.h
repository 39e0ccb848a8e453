// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPlacement.h"

#include <QtGui/QImage>

namespace printdialog {

/// A picture that shows where a printer prints: a vertical and a horizontal line, each this far from the
/// paper's edge unless the printer prints beside it. It is printed like a photo that fills the page, so it is
/// moved by all that moves a photo. Needs a QGuiApplication with fonts.
QImage positionTestPage(const PageGeometry &page);
/// In millimeters, from the left edge and from the top edge.
inline constexpr double positionLine = 20;

} // namespace printdialog
