// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OutputFault.h"

#include <QtCore/QByteArray>

namespace printdialog {

/// Moves a file into a folder that exists, also on another file system: copied, with its time, and on the
/// disk before the original is removed. Nothing is replaced: where its name is taken it becomes "NAME-2.jpg",
/// "NAME-3.jpg" and so on. After a failure, the file is where it was. Blocks.
/// @param path as the file system has it
/// @return its new path
Result<QByteArray, OutputFault> moveInto(const QByteArray &path, const QString &folder);

} // namespace printdialog
