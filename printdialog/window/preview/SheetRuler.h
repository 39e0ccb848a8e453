// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageView.h"

#include <QtCore/QString>

class QFont;
class QPainter;
class QPalette;

namespace printdialog {

/// The room that rulers need beside the sheet, in logical pixels.
int rulerWidth(const QFont &font);
/// Paints rulers along the top and left edge of the sheet as it is seen, in the user's unit, from its top
/// left corner on. They stay in the view when these edges are outside of it.
/// @param print the print whose edges are marked, in points on the page; may be empty
void paintRulers(QPainter &painter, const PageView &view, const QRectF &print, const QPalette &palette);

/// Marks what is printed beyond the edges of the sheet.
void paintBleed(QPainter &painter, const PageView &view);
/// How far beyond the edges it is, for people; empty when nothing is.
QString bleedWidthText(const PageGeometry &page);

} // namespace printdialog
