// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QSize>

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
    QSize size; ///< In pixels, as stored.
    ExifOrientation orientation;
    /// Whether every PDF reader shows these very bytes as they are meant: grey or colour of 8 bits,
    /// sequential or progressive, Huffman coded. CMYK is not: whether its inks are inverted is told in a
    /// place that PDF ignores.
    bool isEmbeddable = false;

    /// Reads untrusted bytes. They begin with a JPEG signature. Of a complete picture, what follows its end
    /// (a second picture, a film, padding) is not looked at.
    static JpegHeader read(QByteArrayView bytes);
};

} // namespace printdialog
