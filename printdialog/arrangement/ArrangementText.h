// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

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

} // namespace printdialog
