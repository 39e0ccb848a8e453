// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

struct ppd_file_s;

namespace pdekit {

/// A result code of the print system: 0 is success, anything else names a failure.
using Status = int;
inline constexpr Status noErr = 0;

/// Keyword of a PPD option to keyword of the choice made for it.
using PPDDictionary = QMap<QString, QString>;

/// The ticket type of a job's print settings.
inline constexpr char PMPrintSettingsTicket[] = "PMPrintSettingsTicket";

/// A job ticket. Owned by the print session.
class PrintTicket
{
public:
    virtual ~PrintTicket() = default;

    /// Writes to `dictionary` the ticket's PPD options at the node (0, 0 is its top level). The dictionary
    /// belongs to the ticket and is changed in place. Does not change `dictionary` when the status is not
    /// noErr.
    virtual Status PMTicketGetPPDDict(int firstNode, int secondNode, PPDDictionary **dictionary) = 0;
};

/// The print session of one dialog. Owned by the dialog; valid while its callback object is.
class PrintSession
{
public:
    virtual ~PrintSession() = default;

    /// Writes to `ppd` the libcups record of the session's printer. The record belongs to the session.
    virtual Status GetPPDRefFromSession(ppd_file_s **ppd) = 0;
    /// Writes to `ticket` the session's ticket of `type`. The ticket belongs to the session.
    virtual Status PMSessionGetTicketFromSession(const QString &type, PrintTicket **ticket) = 0;
};

} // namespace pdekit
