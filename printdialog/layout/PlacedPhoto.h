// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"

namespace printdialog {

/// One photo of a job and its requested placement.
struct PlacedPhoto
{
    Photo photo;
    PlacementChoice placement = {};
    bool isAccepted = false; ///< Whether it is printed even though it is damaged.
};

} // namespace printdialog
