// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "IppOptions.h"
#include "PhotoPlacement.h"
#include "PrintedNames.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// The most copies that a user asks for.
inline constexpr int mostCopies = 999;
/// The most copies of a sheet in a job: what print servers take by default (MaxCopies, cupsd.conf).
inline constexpr int mostJobCopies = 9999;

/// A job's settings, without what is printed (PrintSheet).
struct PrintJob
{
    Destination destination;
    OutputFolder folder; ///< Only for the built-in printer.
    PageGeometry page;
    /// In points: how far everything on the page is moved, since the printer prints that far beside it.
    QPointF offset = {};
    QMap<QString, QString> options; ///< Option keyword to choice keyword, both the PPD's; not "copies".
    QMap<QString, QString> secrets; ///< Like `options`, and only sent: never shown, stored or logged.
    QMap<QString, QString> summary; ///< Shown to people: label to text.
    int copies = 1;                 ///< From 1 to mostCopies.
    /// The PPD that the options were chosen from: nothing is sent to a queue whose PPD has changed since.
    /// Empty for a queue without one. Nothing: no comparison.
    std::optional<QByteArray> ppd = std::nullopt;
    QByteArrayList directTypes; ///< The types that reach the printer unfiltered, see typesPassedThrough().
    /// Sent in place of the options, to a printer that describes itself by its attributes.
    std::optional<IppTicket> ipp = std::nullopt;

    /// The device URI of an announced printer, whose queue is made again if there is none any more.
    QString announcedUri = {};

    /// Whether there is nothing to choose: a job is then the photo's own file, without options.
    bool isRaw() const { return ppd && ppd->isEmpty() && !ipp; }
};

} // namespace printdialog
