// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PdfFile.h"
#include "Photo.h"
#include "Result.h"

namespace printdialog {

/// A photo as an image of a PDF. The file's compressed bytes are embedded unchanged if a PDF can hold them;
/// other photos are decoded and compressed without loss, row by row. The photo's color profile is embedded
/// once, as the image's color space, and the color values are not converted.
class PdfImage
{
public:
    /// How the photo is embedded. All ways keep its 8 bits per component.
    enum class Embedding {
        OriginalJpeg, ///< The file's own bytes.
        OriginalPng,  ///< The file's own compressed pixels, without their chunks.
        Pixels,       ///< Decoded, then compressed without loss; transparency becomes white.
    };

    /// Decides how to embed the photo, and decodes it if necessary, except a PNG, which is decoded while it
    /// is written. Fails when pixels are missing.
    static Result<PdfImage, PhotoFault> of(const Photo &photo);

    Embedding embedding() const { return embedding_; }
    /// Writes the image, and the profile as a separate object. Returns the image's object number. Fails when
    /// the photo's file can no longer be read and, with the image partly written, when a PNG's pixels are
    /// incomplete.
    Result<int, PhotoFault> write(PdfFile &file) const;

private:
    explicit PdfImage(const Photo &photo)
        : photo_(photo)
    {
    }

    void writeJpeg(PdfFile &file, int number, const QByteArray &content) const;
    void writePng(PdfFile &file, int number, const QByteArray &content) const;
    std::optional<Failure<PhotoFault>> writeDecodedPng(PdfFile &file, int number,
                                                       const QByteArray &content) const;
    void writePixels(PdfFile &file, int number) const;

    Photo photo_;
    Embedding embedding_ = Embedding::Pixels;
    QImage pixels_; ///< RGB888 or Grayscale8; null unless the photo was decoded at once
};

} // namespace printdialog
