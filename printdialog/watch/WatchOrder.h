// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "FolderWatch.h"
#include "PrintJob.h"

#include <QtCore/QCoreApplication>

#include <optional>

namespace printdialog {

/// Which folder's photos and documents are printed, and how.
struct WatchOrder
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::WatchOrder)

public:
    QString folder;                 ///< exists
    std::optional<QString> printed; ///< where photos are moved once they are printed; exists
    bool printsExisting = false;    ///< also those that are there when the folder is first watched
    PrintJob job;                   ///< of each photo
    ArrangementStyle style;         ///< of each photo, which is alone with its sheet
    PageChoice pages = {};          ///< of each document, whose pages are one job
    WatchPace pace;

    /// Takes a style over: the next photo may be hours away, so each one fills sheets of its own.
    void setStyle(const ArrangementStyle &wanted);
    /// What can be said before the first photo comes: that the built-in printer would leave its files in the
    /// watched folder, or that no photo can be arranged like this. A sentence; nothing when it is possible.
    std::optional<QString> whyImpossible() const;
};

} // namespace printdialog
