// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QStringList>

class QMimeData;

namespace printdialog {

/// The paths of the dragged files that are on this computer.
QStringList droppedFiles(const QMimeData &data);

} // namespace printdialog
