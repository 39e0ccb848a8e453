// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "PageGeometry.h"
#include "PrintedNames.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// How many copies of each photo a job has at most.
inline constexpr int mostCopies = 999;

/// What is asked of a printer besides the photos (PlacedPhoto).
struct PrintJob
{
    Destination destination;
    OutputFolder folder; ///< Only for the built-in printer.
    PageGeometry page;
    QMap<QString, QString> options; ///< Option keyword to choice keyword, both the PPD's; not "copies".
    QMap<QString, QString> summary; ///< What people are shown: label to text.
    int copies = 1;                 ///< From 1 to mostCopies.
    /// The PPD that the options were chosen from: a queue that has another one by now is sent nothing. Empty
    /// for a queue that has none, see hasPpd(). Without it nothing is compared.
    std::optional<QByteArray> ppd = std::nullopt;
    QByteArrayList directTypes; ///< What the printer itself gets as it is, see typesTakenAsTheyAre().

    /// Without one a job is the photo's own file, without any option.
    bool hasPpd() const { return !ppd || !ppd->isEmpty(); }
};

} // namespace printdialog
