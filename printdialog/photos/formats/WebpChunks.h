// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace printdialog {

/// The content of the first chunk with that name of four letters in a WebP file; empty when there is none.
/// Untrusted bytes.
QByteArrayView webpChunk(QByteArrayView bytes, QByteArrayView name);

/// A WebP file of the same picture whose compressed pixels lack their last bytes; empty when it has hardly
/// more than those, or is an animation. Untrusted bytes.
QByteArray shortenedWebp(QByteArrayView bytes);

} // namespace printdialog
