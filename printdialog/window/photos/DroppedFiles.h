// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QStringList>

class QMimeData;

namespace printdialog {

/// The files on this computer that are dragged.
QStringList droppedFiles(const QMimeData &data);

} // namespace printdialog
