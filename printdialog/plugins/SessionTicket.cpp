// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SessionTicket.h"

namespace printdialog {

namespace {

constexpr pdekit::Status noSuchNode = -1;

} // namespace

pdekit::Status SessionTicket::PMTicketGetPPDDict(int firstNode, int secondNode,
                                                 pdekit::PPDDictionary **dictionary)
{
    if (firstNode != 0 || secondNode != 0)
        return noSuchNode;
    *dictionary = &options_;
    return pdekit::noErr;
}

} // namespace printdialog
