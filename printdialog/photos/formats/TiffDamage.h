// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// The damage in the compressed pixels of a TIFF file's first picture, untranslated, as far as decoders do
/// not report it: in strips and tiles of JPEG (see jpegDamage) and of zlib, by its checksums. Nothing for
/// other kinds of compression, or when the directory is inconsistent. Untrusted bytes. May run on any thread.
std::optional<QString> tiffDamage(QByteArrayView tiff);

} // namespace printdialog
