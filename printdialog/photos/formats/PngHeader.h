// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorProfile.h"
#include "ExifOrientation.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QSize>

#include <optional>

namespace printdialog {

/// The chunks of a PNG file, read without decoding it.
struct PngHeader
{
    /// Whether the chunks are intact.
    enum class State {
        Whole,         ///< All chunks are present and match their checksums.
        Truncated,     ///< The bytes end before the last chunk does.
        Broken,        ///< A chunk other than the pixels does not match its checksum.
        DamagedPixels, ///< Only pixel chunks do not match their checksums.
    };

    State state = State::Truncated;
    QByteArray beginning;  ///< The file's first bytes, with all that says how large the pixels are.
    QSize size;            ///< In pixels, as stored.
    int bitsPerSample = 0; ///< 1, 2, 4, 8 or 16.
    int components = 0;    ///< Stored color components: 1 (grey, or a palette index) or 3.
    /// Color components after decoding and composing on white: 1 (grey) or 3.
    int decodedComponents = 0;
    /// The same with the alpha channel: bytes of a decoded pixel.
    int decodedChannels = 0;
    /// Red, green, blue of each possible index, black where the file has none; empty without a palette.
    QByteArray palette;
    ColorProfile profile; ///< From iCCP, or else gAMA and cHRM; none for sRGB.
    ExifOrientation orientation;
    std::optional<QDateTime> taken;   ///< See ExifData.
    std::optional<double> resolution; ///< In pixels per inch.
    /// Whether the format defines this kind of pixels.
    bool isValid = false;
    bool isInterlaced = false;
    /// Whether a PDF can embed the compressed pixels unchanged: opaque and not interlaced.
    bool isEmbeddable = false;

    /// Reads untrusted bytes, which begin with a PNG signature. Unreadable chunks count as missing. Damage
    /// found here never reaches libpng, which would report it on standard error.
    static PngHeader read(QByteArrayView bytes);
    /// The parts of the compressed pixels of the same bytes, which outlive them.
    static QList<QByteArrayView> pixelParts(QByteArrayView bytes);
    /// Whether the compressed pixels of the same bytes are complete, without surplus. Decompresses them
    /// without keeping them.
    bool hasAllPixels(QByteArrayView bytes) const;
};

} // namespace printdialog
