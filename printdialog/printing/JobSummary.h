// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPlacement.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

namespace printdialog {

class DialogSession;

/// Label and text.
using SummaryEntries = QList<QPair<QString, QString>>;

/// What people call it.
QString scalingText(Scaling scaling);

/// The job in words: the paper, the copies, how the photos are placed, then what the panels say. Nothing
/// about the placement without photos, or for a printer that places them itself.
SummaryEntries jobSummary(DialogSession &session, int copies, const QList<PlacementChoice> &placements);

} // namespace printdialog
