// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifData.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QSize>

#include <optional>

namespace printdialog {

/// The marker segments of a JPEG file, read without decoding it.
struct JpegHeader
{
    enum class State {
        Complete,  ///< Complete up to the marker that ends the picture.
        Truncated, ///< The bytes end before the picture does.
        Broken,    ///< The segments contradict the format.
    };

    State state = State::Broken;
    QSize size;         ///< In pixels, as stored.
    int components = 0; ///< Per pixel: 1 is grey, 3 color, 4 CMYK.
    ExifOrientation orientation;
    std::optional<double> resolution; ///< In pixels per inch, from Exif or else JFIF; see ExifData.
    QByteArray iccProfile;            ///< Unchecked; empty when there is none.
    std::optional<QDateTime> taken;   ///< See ExifData.
    /// Where the file has a small JPEG of the picture; see ExifData.
    std::optional<ExifData::Range> thumbnail;
    /// Whether the values of a CMYK picture are inverted, as Adobe's programs store them.
    bool isInverted = false;
    /// Whether every PDF reader shows these bytes correctly: grey, color or CMYK of 8 bits, sequential or
    /// progressive, Huffman coded.
    bool isEmbeddable = false;
    /// Whether decoders support the kind: sequential or progressive with 8 bits. Medical and cinema programs
    /// write lossless or 12-bit files.
    bool isUsual = false;

    /// Reads untrusted bytes, which begin with a JPEG signature. Data after the end of a complete picture (a
    /// second picture, a film, padding) are ignored.
    static JpegHeader read(QByteArrayView bytes);
    /// The same from a file's first and last bytes (2 at least); nothing when they do not suffice, so that
    /// all have to be read.
    static std::optional<JpegHeader> ofEnds(QByteArrayView first, QByteArrayView last);
};

} // namespace printdialog
