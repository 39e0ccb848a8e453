// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "CommandLine.h"

#include <variant>

namespace printdialog {

/// Opens the photos of the command line, or those of its print list, and arranges them. Fails with the first
/// photo that cannot be printed; a failure is a sentence, about a photo or a list.
Result<Arrangement, std::monostate> requestedArrangement(const CommandLine &commandLine);
/// The photos of the command line, or those of its print list, that can be opened, arranged.
struct OpenedArrangement
{
    Arrangement arrangement;
    QList<qsizetype> numbers;            ///< Of its photos among all, from 0 on.
    qsizetype count = 0;                 ///< Of all.
    QList<Failure<PhotoFault>> failures; ///< Of those that are left out.
};

/// A failure is a sentence about the print list.
Result<OpenedArrangement, std::monostate> openedArrangement(const CommandLine &commandLine);
/// Once the preset's style is known: arranges the photos in it, as far as neither the command line nor a
/// print list says otherwise.
void useStyle(const CommandLine &commandLine, const ArrangementStyle &style, Arrangement &arrangement);

} // namespace printdialog
