// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

namespace printdialog {

/// Whether the bytes of a picture (BMP, GIF, WebP, HEIF or AVIF by its format's name) go as far as they must;
/// true for any other format. Image readers show the first part of such a file without a complaint. Untrusted
/// bytes; nothing is decoded.
bool hasPictureEnd(QByteArrayView format, QByteArrayView bytes);

} // namespace printdialog
