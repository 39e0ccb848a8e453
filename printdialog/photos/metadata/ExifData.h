// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QDateTime>

#include <optional>

namespace printdialog {

/// What a TIFF structure, an Exif block or a TIFF file, says about its picture: its first directory, that of
/// Exif, and that of the thumbnail.
struct ExifData
{
    /// Where bytes lie within the structure.
    struct Range
    {
        qsizetype offset = 0;
        qsizetype size = 0;
    };

    /// The value that stands for an unknown resolution in the Exif standard, in pixels per inch.
    static constexpr double unknownResolution = 72;

    ExifOrientation orientation;
    /// In pixels per inch; nothing when it is missing or unknown, or when the two directions differ.
    std::optional<double> resolution;
    /// Whether the directory's picture is a reduced version of another one in the file, as in camera raw
    /// files.
    bool isReduced = false;
    QByteArray iccProfile; ///< Unchecked; empty when there is none.
    /// When the photo was taken, by the camera's clock, whose time zone is not known. Else, when it was
    /// changed.
    std::optional<QDateTime> taken;
    /// A small JPEG of the picture, unchecked but for its place; nothing when there is none.
    std::optional<Range> thumbnail;

    /// Reads untrusted bytes; unreadable entries count as missing.
    static ExifData fromTiff(QByteArrayView tiff);
};

/// The resolution in pixels per inch if it is plausible for a photo; else nothing.
std::optional<double> plausibleResolution(double horizontal, double vertical);

} // namespace printdialog
