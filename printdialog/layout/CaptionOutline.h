// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtGui/QPainterPath>

namespace printdialog {

/// The outlines of a caption's letters, to be filled: the lines one below the other in the middle of the
/// area, each shortened to its width. As outlines, any script is printed without a font in the document, and
/// the preview shows what is printed. In the area's units. Needs a QGuiApplication with fonts; may run on any
/// thread.
QPainterPath captionOutline(const QStringList &lines, const QRectF &area);

} // namespace printdialog
