// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

namespace printdialog {

/// Whether the bytes of a picture (BMP, GIF, WebP, HEIF or AVIF by format name) are complete; true for any
/// other format. Image readers show the first part of a truncated file without an error. Untrusted bytes;
/// nothing is decoded.
bool hasPictureEnd(QByteArrayView format, QByteArrayView bytes);

} // namespace printdialog
