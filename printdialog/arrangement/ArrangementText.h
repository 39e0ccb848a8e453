// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "PlacementChoice.h"
#include "SheetLayout.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace printdialog {

/// The scaling's name for people; on a page, or within a print size.
QString scalingText(Scaling scaling, bool hasSize = false);
/// A placement in words: "Fill the page, turned by 90°", "10 × 15 cm, filled, border 3 mm".
QString placementText(const PlacementChoice &choice);
/// That of several photos: one text when they are alike.
QString placementText(const QList<PlacementChoice> &placements);
/// A layout in words: "2 × 3 on each sheet", "Contact sheet, 5 × 4".
QString layoutText(const SheetLayout &layout);
/// A choice of pages in words: "1-3, 7, odd pages only, last one first"; empty for all.
QString pagesText(const PageChoice &pages);
/// What is not printed beside the pages of the wanted ranges that are: those behind the end of all documents,
/// and documents that end before the ranges begin. Empty without such.
QString pagesBeyondText(const Arrangement &arrangement);
/// What is to be printed: "3 photos", "12 pages", "3 photos and 12 pages".
QString contentText(const Arrangement &arrangement);

} // namespace printdialog
