// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintDialogCallback.h"
#include "PrintSession.h"

#include <functional>

namespace printdialog {

class PpdDocument;
class SessionPrinter;
class SessionTicket;

/// The callback object of a dialog that does not check constraints: the panels work through the print
/// settings. The objects that it hands out belong to the session and must outlive it.
class CallbackObject : public QObject, public pdekit::PrintDialogCallback, public pdekit::PrintSession
{
    Q_OBJECT
    Q_INTERFACES(pdekit::PrintDialogCallback)

public:
    CallbackObject(const PpdDocument *ppd, SessionPrinter &printer, SessionTicket &ticket);

    pdekit::PrintSession *printSession() override;
    pdekit::Printer *PMPrinter() override;
    ppd_file_s *ppdFile() override;

    pdekit::Status GetPPDRefFromSession(ppd_file_s **ppd) override;
    pdekit::Status PMSessionGetTicketFromSession(const QString &type, pdekit::PrintTicket **ticket) override;

private:
    const PpdDocument *ppd_; ///< null for a printer without one
    SessionPrinter &printer_;
    SessionTicket &ticket_;
};

/// The callback object of a dialog that rules on each choice.
class ConstrainingCallbackObject final : public CallbackObject, public pdekit::ConstraintHandling
{
    Q_OBJECT
    Q_INTERFACES(pdekit::ConstraintHandling)

public:
    /// True when the choice now applies to the job.
    using Rule = std::function<bool(const QString &key, const QString &choice)>;

    ConstrainingCallbackObject(const PpdDocument *ppd, SessionPrinter &printer, SessionTicket &ticket,
                               Rule rule);

    bool willChangePPDOptionKeyValuePpdChoice(const QString &key, const QString &choice) override;

private:
    Rule rule_;
};

} // namespace printdialog
