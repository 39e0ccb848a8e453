// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QSize>

#include <optional>

namespace printdialog {

/// What the marker segments of a JPEG file say, read without decoding it.
struct JpegHeader
{
    enum class State {
        Complete,  ///< Whole, up to the marker that ends the picture.
        Truncated, ///< The bytes end before the picture does.
        Broken,    ///< The segments contradict the format.
    };

    State state = State::Broken;
    QSize size;         ///< In pixels, as stored.
    int components = 0; ///< Numbers of a colour: 1 is grey, 3 colour, 4 CMYK.
    ExifOrientation orientation;
    std::optional<double> resolution; ///< In pixels per inch, of Exif or else of JFIF; see ExifData.
    QByteArray iccProfile;            ///< Unchecked; empty when there is none.
    /// Whether the numbers of a CMYK picture tell how much ink is missing, as Adobe's programs store them.
    bool isInverted = false;
    /// Whether every PDF reader shows these very bytes as they are meant, when it is told what they are:
    /// grey, colour or CMYK of 8 bits, sequential or progressive, Huffman coded.
    bool isEmbeddable = false;
    /// Whether decoders know the kind: sequential or progressive with 8 bits. What medical and cinema
    /// programs write is lossless or has 12 bits.
    bool isUsual = false;

    /// Reads untrusted bytes. They begin with a JPEG signature. Of a complete picture, what follows its end
    /// (a second picture, a film, padding) is not looked at.
    static JpegHeader read(QByteArrayView bytes);
};

} // namespace printdialog
