// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorProfile.h"
#include "ExifOrientation.h"
#include "JpegHeader.h"
#include "PhotoFile.h"
#include "PngHeader.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <atomic>
#include <memory>

namespace printdialog {

struct ScaledPart;

/// A part of a photo's pixels.
struct PhotoPart
{
    QImage image;
    QRectF area; ///< exactly what it shows, in the unit square of the upright photo
};

/// A photo that can be printed: its file's content and metadata. A value; copies share the content. Several
/// threads may use it, each with its own copy.
class Photo
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Photo)

public:
    static constexpr qint64 maximumFileSize = qint64(512) << 20; ///< In bytes.
    static constexpr qint64 maximumPixels = 400'000'000;
    /// In pixels per inch, for a photo whose file has no resolution: that of most photo printers.
    static constexpr double assumedResolution = 300;

    /// A null photo.
    Photo() = default;

    /// Reads the file and its headers, and checks that a JPEG, PNG, HEIF, AVIF, BMP, GIF or WebP file is
    /// complete. Nothing is decoded, and of a file that is not a picture only the first bytes are read. The
    /// format (see PhotoFormat) is detected by content, not by name. Any PhotoFault can result.
    static Result<Photo, PhotoFault> open(const QString &path);

    QString path() const { return path_; } ///< As given to open().
    QString fileName() const;
    QByteArray format() const { return format_; } ///< "jpeg", "png", "heif", "avif", ...
    QByteArray content() const { return content_; }
    QDateTime modified() const { return modified_; }
    QSize storedSize() const { return storedSize_; } ///< In pixels.
    ExifOrientation orientation() const { return orientation_; }
    QSize orientedSize() const { return orientation_.seenSize(storedSize_); } ///< In pixels, as seen.
    /// In pixels per inch, from the file; nothing when it has none.
    std::optional<double> resolution() const { return resolution_; }
    /// The resolution that gives the actual size, in pixels per inch.
    double printedResolution() const { return resolution_.value_or(assumedResolution); }
    /// The profile of both the stored and the decoded colors.
    const ColorProfile &profile() const { return profile_; }
    /// The header of a JPEG or PNG file, read once when it was opened; null for other formats. Valid as long
    /// as any copy of this photo.
    const JpegHeader *jpegHeader() const { return jpeg_.get(); }
    const PngHeader *pngHeader() const { return png_.get(); }
    /// Whether content() is a JPEG or PNG file whose compressed pixels a PDF can embed unchanged.
    bool isEmbeddable() const { return jpeg_ ? jpeg_->isEmbeddable : png_ && png_->isEmbeddable; }

    /// Whether the pixels are damaged although the headers are intact. The first call checks all pixels of a
    /// JPEG (see jpegDamage), WebP or TIFF file (see tiffDamage), and copies share the result. A PNG's
    /// checksums are checked when it is opened. In other formats, damage is found only by decoding. Fault:
    /// Damaged.
    std::optional<Failure<PhotoFault>> damage() const;
    /// Whether damage() returns at once.
    bool isChecked() const;

    /// The pixels as stored, not turned by orientation(). Takes seconds and gigabytes for the largest photos.
    /// Faults: Broken, and TooLarge when memory is short.
    Result<QImage, PhotoFault> decoded() const;
    /// The upright photo in sRGB, scaled down to the bound (in pixels) but never enlarged; a null image when
    /// it cannot be decoded. Takes a fraction of a second, so call it on a worker thread.
    QImage preview(const QSize &bound) const;
    /// The same in the colors that are printed, those of pixelProfile(), so that adjustments can be worked
    /// out as for the printer. RGB32, composed on white. Colors other than RGB are converted to sRGB.
    QImage pixels(const QSize &bound) const;
    /// The part (in the unit square of the upright photo) of pixels(), were they scaled to `whole` pixels;
    /// never enlarged, and nothing beside the photo. A null image when it cannot be decoded, when the part is
    /// empty, or when it is given up meanwhile (not found out at once, and only for JPEG and PNG; may be
    /// null). Takes up to the time of decoding the whole photo, so call it on a worker thread. A JPEG or PNG
    /// is not held in memory as a whole, unless it is progressive or interlaced; other formats are.
    PhotoPart part(const QRectF &part, const QSize &whole,
                   const std::atomic<bool> *isGivenUp = nullptr) const;
    /// The ICC profile of pixels() and part(); empty for sRGB.
    QByteArray pixelProfile() const;

    /// The failure for content that turns out to be damaged; the detail is for the log.
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
    QImage scaledWithin(const QSize &bound) const;
    QImage decodedPart(const ScaledPart &stored, const std::atomic<bool> *isGivenUp) const;
    QImage inPixelColors(const QImage &image) const;
    Failure<PhotoFault> truncated() const;

    QString path_;
    QByteArray format_;
    QByteArray content_;
    QDateTime modified_;
    QSize storedSize_;
    ExifOrientation orientation_;
    std::optional<double> resolution_;
    ColorProfile profile_;
    std::shared_ptr<const JpegHeader> jpeg_;
    std::shared_ptr<const PngHeader> png_;
    std::shared_ptr<Verdict> verdict_; ///< The result of damage(); null for a null photo.
};

} // namespace printdialog
