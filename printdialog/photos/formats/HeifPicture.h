// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColourProfile.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <variant>

namespace printdialog {

/// The primary picture of a HEIF or AVIF file. libheif turns, mirrors and crops it as the file tells, so that
/// it is upright whatever else is said about its orientation. Untrusted bytes. Failures have a detail only.
struct HeifPicture
{
    QSize size; ///< In pixels, upright.
    /// The file's ICC profile, or one that is made of its colour primaries; none for sRGB.
    ColourProfile profile;

    /// Reads the headers without decoding.
    static Result<HeifPicture, std::monostate> read(const QByteArray &content);
    /// The upright pixels, of 8 bits per colour.
    static Result<QImage, std::monostate> decode(const QByteArray &content);
};

} // namespace printdialog
