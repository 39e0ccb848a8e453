// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

namespace printdialog {

/// How far the chunks of a PNG file can be trusted.
enum class PngChunks {
    Whole,         ///< Every chunk up to the last one is there and unchanged.
    Truncated,     ///< The bytes end before the last chunk does.
    Broken,        ///< A chunk is not what its checksum says.
    DamagedPixels, ///< Nothing but pixels is not what its checksum says.
};

/// Checks the chunks of an untrusted PNG file without decoding it. The bytes begin with a PNG signature.
/// Damage found here never reaches the PNG library, which writes about it to standard error on its own.
PngChunks checkPngChunks(QByteArrayView bytes);

} // namespace printdialog
