// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// What is wrong with the compressed pixels of a TIFF file's first picture, untranslated, where decoders pass
/// over it: strips and tiles of JPEG (see jpegDamage), and of zlib, whose checksums are looked at. Nothing
/// for other kinds of compression, or when the directory contradicts itself. Untrusted bytes. May run on any
/// thread.
std::optional<QString> tiffDamage(QByteArrayView tiff);

} // namespace printdialog
