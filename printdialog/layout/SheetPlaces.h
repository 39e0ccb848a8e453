// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPlacement.h"
#include "SheetLayout.h"

#include <QtCore/QLineF>
#include <QtCore/QList>

namespace printdialog {

/// A place for one photo on a sheet.
struct SheetPlace
{
    PhotoFrame frame;
    QRectF caption; ///< Below the frame, in points; empty without one.
};

/// The places of a sheet in reading order; at least one, and none is empty. `size` is the print size that
/// ManyOfSize repeats. Where the layout leaves no room, or has no size, the whole page is the only place.
QList<SheetPlace> sheetPlaces(const SheetLayout &layout, const PageGeometry &page,
                              const std::optional<PrintSize> &size);
/// The number of text lines of a caption.
int captionLines(Caption caption);

/// Where the prints are to be cut: short lines that begin beside their corners, on the printed area and
/// outside all prints.
QList<QLineF> cutMarksAround(const QList<QRectF> &prints, const QRectF &printed);
/// The same between the two strips, at both ends of the sheet.
QList<QLineF> cutMarksOfStrips(const SheetLayout &layout, const QRectF &printed);

} // namespace printdialog
