// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayList>

namespace printdialog {

class PpdDocument;

/// The document types (MIME, lower case) that a queue with this PPD passes to its printer unchanged, without
/// a filter of the print server. Read from cupsFilter, cupsFilter2 and cupsPreFilter.
QByteArrayList typesPassedThrough(const PpdDocument &ppd);

} // namespace printdialog
