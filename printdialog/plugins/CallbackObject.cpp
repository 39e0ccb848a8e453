// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CallbackObject.h"

#include "PpdDocument.h"
#include "SessionPrinter.h"
#include "SessionTicket.h"

#include <utility>

namespace printdialog {

namespace {

constexpr pdekit::Status noSuchTicket = -1;
constexpr pdekit::Status noPpd = -2;

} // namespace

CallbackObject::CallbackObject(const PpdDocument *ppd, SessionPrinter &printer, SessionTicket &ticket)
    : ppd_(ppd)
    , printer_(printer)
    , ticket_(ticket)
{
}

pdekit::PrintSession *CallbackObject::printSession()
{
    return this;
}

pdekit::Printer *CallbackObject::PMPrinter()
{
    return &printer_;
}

ppd_file_s *CallbackObject::ppdFile()
{
    return ppd_ ? ppd_->record() : nullptr;
}

pdekit::Status CallbackObject::GetPPDRefFromSession(ppd_file_s **ppd)
{
    if (!ppd_)
        return noPpd;
    *ppd = ppd_->record();
    return pdekit::noErr;
}

pdekit::Status CallbackObject::PMSessionGetTicketFromSession(const QString &type,
                                                             pdekit::PrintTicket **ticket)
{
    if (type != QLatin1String(pdekit::PMPrintSettingsTicket))
        return noSuchTicket;
    *ticket = &ticket_;
    return pdekit::noErr;
}

ConstrainingCallbackObject::ConstrainingCallbackObject(const PpdDocument *ppd, SessionPrinter &printer,
                                                       SessionTicket &ticket, Rule rule)
    : CallbackObject(ppd, printer, ticket)
    , rule_(std::move(rule))
{
}

bool ConstrainingCallbackObject::willChangePPDOptionKeyValuePpdChoice(const QString &key,
                                                                      const QString &choice)
{
    return rule_(key, choice);
}

} // namespace printdialog
