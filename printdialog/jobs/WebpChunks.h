// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

namespace printdialog {

/// The content of the first chunk with that name of four letters in a WebP file; empty when there is none.
/// Untrusted bytes.
QByteArrayView webpChunk(QByteArrayView bytes, QByteArrayView name);

} // namespace printdialog
