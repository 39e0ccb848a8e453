// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <memory>

namespace printdialog {

/// Decodes the pixels of a PNG file row by row, from the top down, as they lie on white paper: 8 bits for
/// each number, and nothing transparent. Only an interlaced picture is in memory as a whole. Complaints go to
/// nobody but the caller. One thread at a time.
class PngPixels
{
public:
    /// How much memory an interlaced picture may take, in bytes.
    static constexpr qint64 largestInterlaced = qint64(400) << 20;

    /// The bytes are untrusted and outlive this object; their header was found to be valid.
    explicit PngPixels(QByteArrayView png);
    ~PngPixels();
    PngPixels(const PngPixels &) = delete;
    PngPixels &operator=(const PngPixels &) = delete;

    /// The next row, valid until the next call; null when there is no more, or after an error. What follows
    /// the last row is not looked at.
    const unsigned char *nextRow();

    /// Untranslated; empty when all went well.
    QString error() const;
    bool isShortOfMemory() const;

private:
    class Decoder;
    std::unique_ptr<Decoder> decoder_;
};

} // namespace printdialog
