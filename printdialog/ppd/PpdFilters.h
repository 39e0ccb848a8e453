// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayList>

namespace printdialog {

class PpdDocument;

/// The types of documents (MIME, lower case) that a queue with this PPD hands to its printer as they are: no
/// filter of the print server reads them on the way. Told by the keywords cupsFilter, cupsFilter2 and
/// cupsPreFilter.
QByteArrayList typesTakenAsTheyAre(const PpdDocument &ppd);

} // namespace printdialog
