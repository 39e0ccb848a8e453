// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SheetPlaces.h"

namespace printdialog {

/// The places of pages that share a side of a sheet, in the order in which they are read; all of them lie the
/// same way, so that the sheet is turned once to be read. Empty without room for them.
/// @param count one of SheetLayout::pagesPerSheetChoices
/// @param shape the size of the first page, in any unit
QList<SheetPlace> pagePlaces(int count, double gap, const PageGeometry &page, const QSizeF &shape);
/// The left and the right place of a sheet that is folded in its middle, across its longer side. An upright
/// sheet is read after a quarter turn to the left.
QList<SheetPlace> bookletPlaces(const PageGeometry &page);

/// The pages of a booklet side after side, on each the left and the right one, as indexes; -1: an empty
/// place. A sheet's second side is meant to be printed on its back, turned over along the short edge. Their
/// number is a multiple of four, less two for a single page.
QList<qsizetype> bookletOrder(qsizetype count);

/// The frame of a page that has a sheet for itself: the whole sheet when the page has the paper's size or is
/// printed in its own, since programs leave the margins free; else the printable area.
struct PageFrame
{
    PhotoFrame frame;
    PlacementChoice placement;

    /// @param size of the page, in points
    static PageFrame of(const QSizeF &size, const PlacementChoice &wanted, const PageGeometry &page);
};

/// The share that is not printed, see PhotoPlacement::cutOff(). Of a page that is as large as its sheet, the
/// margins that the printer does not reach are none of it: programs leave them free.
double cutOffShare(bool isPage, const PhotoPlacement &placement, const PageGeometry &page);

} // namespace printdialog
