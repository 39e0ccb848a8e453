// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageGeometry.h"
#include "PhotoPlacement.h"
#include "QueueTerms.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// How many copies of each photo a job has at most.
inline constexpr int mostCopies = 999;

/// What is asked of a printer besides the photo.
struct PrintJob
{
    QString printer; ///< The printer's name.
    PageGeometry page;
    PlacementChoice placement;      ///< Of the photo on the page.
    QMap<QString, QString> options; ///< Option keyword to choice keyword.
    QMap<QString, QString> summary; ///< What people are shown: label to text.
    int copies = 1;                 ///< From 1 to mostCopies.
    bool checksPhoto = true;        ///< Whether a damaged photo is refused.
    QueueTerms queue;               ///< Only for a queue.
};

} // namespace printdialog
