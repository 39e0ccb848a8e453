// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColourProfile.h"
#include "ExifOrientation.h"
#include "JpegHeader.h"
#include "PhotoFile.h"
#include "PngHeader.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <memory>

namespace printdialog {

/// A photo that can be printed: its file's content and what was found in it. A value; copies share the
/// content. Safe to use from several threads, each with its own copy.
class Photo
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Photo)

public:
    static constexpr qint64 maximumFileSize = qint64(512) << 20; ///< In bytes.
    static constexpr qint64 maximumPixels = 400'000'000;
    /// In pixels per inch, of a photo whose file names no resolution: that of most photo printers.
    static constexpr double assumedResolution = 300;

    /// No photo.
    Photo() = default;

    /// Reads the file and its headers, and makes sure that a JPEG, PNG, HEIF, AVIF, BMP, GIF or WebP file is
    /// whole. Nothing is decoded, and of a file that is no picture only the first bytes are read. What the
    /// format is (see PhotoFormat) is told by the content and not by the name. Every fault of PhotoFault can
    /// come of it.
    static Result<Photo, PhotoFault> open(const QString &path);

    QString path() const { return path_; } ///< As given to open().
    QString fileName() const;
    QByteArray format() const { return format_; } ///< "jpeg", "png", "heif", "avif", ...
    QByteArray content() const { return content_; }
    QDateTime modified() const { return modified_; }
    QSize storedSize() const { return storedSize_; } ///< In pixels.
    ExifOrientation orientation() const { return orientation_; }
    QSize orientedSize() const { return orientation_.seenSize(storedSize_); } ///< In pixels, as seen.
    /// In pixels per inch, as the file names it; nothing when it names none.
    std::optional<double> resolution() const { return resolution_; }
    /// The resolution that makes the actual size, in pixels per inch.
    double printedResolution() const { return resolution_.value_or(assumedResolution); }
    /// What the numbers of the stored and of the decoded colours mean.
    const ColourProfile &profile() const { return profile_; }
    /// The header of a JPEG and of a PNG file, read once when it was opened; null for other formats. What it
    /// points to lives as long as any copy of this photo.
    const JpegHeader *jpegHeader() const { return jpeg_.get(); }
    const PngHeader *pngHeader() const { return png_.get(); }
    /// Whether the compressed pixels of content(), a JPEG or PNG file, can go into a PDF as they are.
    bool isEmbeddable() const { return jpeg_ ? jpeg_->isEmbeddable : png_ && png_->isEmbeddable; }

    /// Whether the pixels are damaged behind headers that are sound. Looks at all of a JPEG's (see
    /// jpegDamage), WebP or TIFF file's (see tiffDamage) when it is first asked, which copies of this photo
    /// then need not do again; a PNG's checksums were looked at when it was opened. Of other formats nothing
    /// is known before they are decoded. Fault: Damaged.
    std::optional<Failure<PhotoFault>> damage() const;
    /// Whether damage() answers at once.
    bool isChecked() const;

    /// The pixels as stored, not turned by orientation(). Takes seconds and gigabytes for the largest photos.
    /// Faults: Broken, and TooLarge when memory is short.
    Result<QImage, PhotoFault> decoded() const;
    /// The photo upright, within the bound (in pixels) and never enlarged; a null image when it cannot be
    /// decoded. Takes a fraction of a second, so call it on a worker thread.
    /// In the colours of a screen.
    QImage preview(const QSize &bound) const;

    /// The failure when the content turns out to be damaged; the detail is for the log.
    Failure<PhotoFault> broken(const QString &detail) const;
    Failure<PhotoFault> memoryFailure() const;

private:
    struct Verdict;

    std::optional<Failure<PhotoFault>> inspectJpeg();
    std::optional<Failure<PhotoFault>> inspectPng();
    std::optional<Failure<PhotoFault>> inspectHeif();
    std::optional<Failure<PhotoFault>> inspectOther();
    std::optional<Failure<PhotoFault>> checkPixels() const;
    std::optional<QString> findDamage() const;
    QImage decodedWithin(const QSize &storedBound, QString &error) const;
    Failure<PhotoFault> truncated() const;

    QString path_;
    QByteArray format_;
    QByteArray content_;
    QDateTime modified_;
    QSize storedSize_;
    ExifOrientation orientation_;
    std::optional<double> resolution_;
    ColourProfile profile_;
    std::shared_ptr<const JpegHeader> jpeg_;
    std::shared_ptr<const PngHeader> png_;
    std::shared_ptr<Verdict> verdict_; ///< Of damage(); null for no photo.
};

} // namespace printdialog
