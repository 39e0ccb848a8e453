// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <memory>

namespace printdialog {

/// Decodes the pixels of a PNG file row by row, from the top down, composed on white, with 8 bits per
/// component. Only an interlaced picture is held in memory completely. Errors are reported only to the
/// caller. One thread at a time.
class PngPixels
{
public:
    /// The memory limit for an interlaced picture, in bytes.
    static constexpr qint64 largestInterlaced = qint64(400) << 20;

    /// The bytes are untrusted and outlive this object; their header is valid.
    explicit PngPixels(QByteArrayView png);
    ~PngPixels();
    PngPixels(const PngPixels &) = delete;
    PngPixels &operator=(const PngPixels &) = delete;

    /// The next row, valid until the next call; null after the last row or an error. Data after the last row
    /// are ignored.
    const unsigned char *nextRow();

    /// Untranslated; empty when all went well.
    QString error() const;
    bool isShortOfMemory() const;

private:
    class Decoder;
    std::unique_ptr<Decoder> decoder_;
};

} // namespace printdialog
