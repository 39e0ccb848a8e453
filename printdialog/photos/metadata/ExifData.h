// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <optional>

namespace printdialog {

/// The first directory of a TIFF structure: an Exif block or a TIFF file.
struct ExifData
{
    /// The value that stands for an unknown resolution in the Exif standard, in pixels per inch.
    static constexpr double unknownResolution = 72;

    ExifOrientation orientation;
    /// In pixels per inch; nothing when it is missing or unknown, or when the two directions differ.
    std::optional<double> resolution;
    /// Whether the directory's picture is a reduced version of another one in the file, as in camera raw
    /// files.
    bool isReduced = false;
    QByteArray iccProfile; ///< Unchecked; empty when there is none.

    /// Reads untrusted bytes; unreadable entries count as missing.
    static ExifData fromTiff(QByteArrayView tiff);
};

/// The resolution in pixels per inch if it is plausible for a photo; else nothing.
std::optional<double> plausibleResolution(double horizontal, double vertical);

} // namespace printdialog
