// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColourProfile.h"
#include "ExifOrientation.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QSize>

#include <optional>

namespace printdialog {

/// What the chunks of a PNG file say, read without decoding it.
struct PngHeader
{
    /// How far the chunks can be trusted.
    enum class State {
        Whole,         ///< Every chunk up to the last one is there and unchanged.
        Truncated,     ///< The bytes end before the last chunk does.
        Broken,        ///< A chunk is not what its checksum says.
        DamagedPixels, ///< Nothing but pixels is not what its checksum says.
    };

    State state = State::Truncated;
    QSize size;            ///< In pixels, as stored.
    int bitsPerSample = 0; ///< 1, 2, 4, 8 or 16.
    int components = 0;    ///< Numbers of a colour as they are stored: 1 (grey, or a palette's index) or 3.
    /// Numbers of a colour when it is decoded and laid on paper: 1 (grey) or 3.
    int decodedComponents = 0;
    /// The same with what tells the transparent pixels: bytes of a decoded pixel.
    int decodedChannels = 0;
    /// Red, green, blue of each colour that a pixel can name, black where the file has none; empty without a
    /// palette.
    QByteArray palette;
    QList<QByteArrayView> data; ///< The parts of the compressed pixels; they point into the file's bytes.
    ColourProfile profile;      ///< Of iCCP, or else of gAMA and cHRM; none for sRGB.
    ExifOrientation orientation;
    std::optional<double> resolution; ///< In pixels per inch.
    /// Whether the format knows such pixels at all.
    bool isValid = false;
    bool isInterlaced = false;
    /// Whether the compressed pixels can go into a PDF as they are: opaque and not interlaced.
    bool isEmbeddable = false;

    /// Reads untrusted bytes, which begin with a PNG signature and outlive the answer. What cannot be read
    /// counts as not there. Damage found here never reaches the PNG library, which writes about it to
    /// standard error on its own.
    static PngHeader read(QByteArrayView bytes);
    /// Whether the compressed pixels are all there, and nothing more. Decompresses them, and keeps nothing.
    bool hasAllPixels() const;
};

} // namespace printdialog
