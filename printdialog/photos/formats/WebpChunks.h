// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace printdialog {

/// The content of the first chunk with that name (four letters) in a WebP file; empty when there is none.
/// Untrusted bytes.
QByteArrayView webpChunk(QByteArrayView bytes, QByteArrayView name);

/// The same WebP file without the last bytes of its compressed pixels; empty when it is too short for that,
/// or is an animation. Untrusted bytes.
QByteArray shortenedWebp(QByteArrayView bytes);

} // namespace printdialog
