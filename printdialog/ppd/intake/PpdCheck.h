// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdInspection.h"

#include <chrono>
#include <optional>

namespace printdialog {

/// The program that tries out PPDs, from this program's own place.
QString ppdCheckProgram();

/// Tries out an untrusted PPD, once it has passed inspectPpd(), in a process of its own without any rights,
/// so that one over which libcups crashes or never ends does no harm here. To be called before a PpdDocument
/// is made of a PPD that comes from a print server or from a file of the user's. Blocks, at most for the
/// limit, within which the process has five seconds of processor time; any thread. Nothing when the PPD may
/// be opened; a PPD that only breaks the format is left to PpdDocument, which says where. `name` is what
/// people call the PPD.
std::optional<Failure<PpdFault>> checkPpd(const QByteArray &data, const QString &name,
                                          const QString &program = ppdCheckProgram(),
                                          std::chrono::milliseconds limit = std::chrono::seconds(20));

} // namespace printdialog
