// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageChoice.h"
#include "PlacementChoice.h"
#include "SheetLayout.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

namespace printdialog {

class DialogSession;

/// Pairs of label and text.
using SummaryEntries = QList<QPair<QString, QString>>;

/// The job in words: the paper, the copies, the photos' placement and layout, the choice of pages, then the
/// panels' entries. The placement is left out without photos, or for a printer that places them itself; the
/// layout where each photo has a sheet, the pages where all are printed.
SummaryEntries jobSummary(DialogSession &session, int copies, const QList<PlacementChoice> &placements,
                          const SheetLayout &layout, const PageChoice &pages = {});

} // namespace printdialog
