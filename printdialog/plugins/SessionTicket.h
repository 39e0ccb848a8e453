// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintSession.h"

namespace printdialog {

/// The job ticket of one session: a dictionary of PPD options at its top level.
class SessionTicket final : public pdekit::PrintTicket
{
public:
    pdekit::Status PMTicketGetPPDDict(int firstNode, int secondNode,
                                      pdekit::PPDDictionary **dictionary) override;

    pdekit::PPDDictionary &options() { return options_; }
    const pdekit::PPDDictionary &options() const { return options_; }

private:
    pdekit::PPDDictionary options_;
};

} // namespace printdialog
