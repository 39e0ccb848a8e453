// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PdfFile.h"
#include "Photo.h"
#include "Result.h"

namespace printdialog {

/// A photo as an image of a PDF. The compressed bytes of the file go in as they are wherever a PDF can hold
/// them; other photos are decoded and compressed without loss, row by row. The photo's colour profile goes in
/// once, as the image's colour space, and the numbers of the colours stay as they are.
class PdfImage
{
public:
    /// How the photo gets into the PDF. Neither way loses anything of its 8 bits per colour.
    enum class Embedding {
        OriginalJpeg, ///< The file's own bytes.
        OriginalPng,  ///< The file's own compressed pixels, without their chunks.
        Pixels,       ///< Decoded, then compressed without loss; what is transparent is white.
    };

    /// Finds out how the photo goes in, and decodes it when it must, but for a PNG, whose pixels are decoded
    /// while they are written. Fails when its pixels are not all there.
    static Result<PdfImage, PhotoFault> of(const Photo &photo);

    Embedding embedding() const { return embedding_; }
    /// Writes the image, and the profile as an object of its own. Answers the image's number. Fails, with a
    /// part of it written, when a PNG's pixels are not all there.
    Result<int, PhotoFault> write(PdfFile &file) const;

private:
    explicit PdfImage(const Photo &photo)
        : photo_(photo)
    {
    }

    void writeJpeg(PdfFile &file, int number) const;
    void writePng(PdfFile &file, int number) const;
    std::optional<Failure<PhotoFault>> writeDecodedPng(PdfFile &file, int number) const;
    void writePixels(PdfFile &file, int number) const;

    Photo photo_;
    Embedding embedding_ = Embedding::Pixels;
    QImage pixels_; ///< RGB888 or Grayscale8; null unless the photo was decoded as a whole
};

} // namespace printdialog
