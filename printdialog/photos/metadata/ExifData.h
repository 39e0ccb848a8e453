// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <optional>

namespace printdialog {

/// What the first directory of a TIFF block says: of an Exif block, or of a TIFF file.
struct ExifData
{
    /// How the Exif standard has a camera say that it knows no resolution, in pixels per inch.
    static constexpr double unknownResolution = 72;

    ExifOrientation orientation;
    /// In pixels per inch; nothing when none is named, when the two directions differ, or when it is unknown.
    std::optional<double> resolution;
    /// Whether the picture of the directory stands for a larger one elsewhere in the file, as in the raw
    /// files of cameras.
    bool isReduced = false;
    QByteArray iccProfile; ///< Unchecked; empty when there is none.

    /// Reads untrusted bytes: whatever cannot be read counts as not there.
    static ExifData fromTiff(QByteArrayView tiff);
};

/// A resolution in pixels per inch that a photo can have had in earnest; nothing for any other number.
std::optional<double> plausibleResolution(double horizontal, double vertical);

} // namespace printdialog
