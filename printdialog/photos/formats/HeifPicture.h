// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorProfile.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <optional>
#include <variant>

namespace printdialog {

/// The primary picture of a HEIF or AVIF file. libheif applies the file's turns, mirroring and cropping, so
/// the result is upright whatever Exif says. Untrusted bytes. Failures have only a detail.
struct HeifPicture
{
    QSize size; ///< In pixels, upright.
    /// The file's ICC profile, or one made from its color primaries; none for sRGB.
    ColorProfile profile;
    std::optional<QDateTime> taken; ///< See ExifData.

    /// Reads the headers without decoding.
    static Result<HeifPicture, std::monostate> read(const QByteArray &content);
    /// The upright pixels, with 8 bits per component.
    static Result<QImage, std::monostate> decode(const QByteArray &content);
};

} // namespace printdialog
