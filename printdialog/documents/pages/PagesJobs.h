// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PagesMessages.h"
#include "SourcePdf.h"

#include <qpdf/Pipeline.hh>

#include <vector>

namespace printdialog {

/// Does what is asked. Does not throw.
/// @param output is finished only when something was written to it
PagesAnswer answerTo(const PagesRequest &request, const std::vector<DocumentBytes> &documents,
                     Pipeline &output);

/// Reads the pages of a document, and writes a copy of it where that is wanted or where it has to be: when it
/// is encrypted or damaged, or its annotations are not shown as they are printed. Throws what libqpdf throws.
PagesAnswer readPages(const PagesRequest &request, DocumentBytes document, Pipeline &output);

/// Writes a PDF of sheets. Throws what libqpdf throws.
/// @param current the document at work, from 0 on
PagesAnswer composeSheets(const PagesRequest &request, const std::vector<DocumentBytes> &documents,
                          Pipeline &output, std::uint32_t &current);

} // namespace printdialog
