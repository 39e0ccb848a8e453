// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"

#include <QtCore/QString>

namespace printdialog {

/// One line for people about a photo on its page: its printed size in their units, its pixels per inch, and
/// how much is cut off.
QString placementText(const Photo &photo, const PhotoPlacement &placement, const PlacementChoice &choice,
                      const PageGeometry &page);

} // namespace printdialog
