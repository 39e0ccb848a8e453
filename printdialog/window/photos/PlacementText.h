// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"

#include <QtCore/QString>

namespace printdialog {

/// One line about a photo on its page, for people: its size there in their units, how many pixels go into an
/// inch, and what is cut off.
QString placementText(const Photo &photo, const PhotoPlacement &placement, const PlacementChoice &choice,
                      const PageGeometry &page);

} // namespace printdialog
