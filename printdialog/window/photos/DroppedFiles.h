// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QStringList>

class QMimeData;

namespace printdialog {

/// The files on this computer that are dragged; their names may be of any bytes (see FileName.h).
QStringList droppedFiles(const QMimeData &data);

} // namespace printdialog
