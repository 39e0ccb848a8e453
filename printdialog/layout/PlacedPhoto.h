// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"

namespace printdialog {

/// One photo of a job and how it is wanted.
struct PlacedPhoto
{
    Photo photo;
    PlacementChoice placement = {};
    bool isAccepted = false; ///< Whether it is printed even though it is damaged.
    int copies = 1;          ///< From 1 to mostPhotoCopies; the job's own copies multiply them.
};

/// The most prints of one photo in an arrangement.
inline constexpr int mostPhotoCopies = 999;

} // namespace printdialog
