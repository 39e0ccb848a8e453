// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorProfile.h"
#include "Document.h"
#include "ExifOrientation.h"
#include "JpegHeader.h"
#include "PhotoContent.h"
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

/// Which picture it is: a file in a state, or a page of one.
struct PictureKey
{
    FileIdentity file;
    int page = -1; ///< From 0 on; -1 for a photo.

    bool operator==(const PictureKey &) const = default;
};

inline std::size_t qHash(const PictureKey &key, std::size_t seed = 0)
{
    return qHashMulti(seed, key.file, key.page);
}

/// A photo that can be printed: its file and what the file's headers say. Its content is read when it is
/// needed, and only if the file is still the one that was opened. A page of a document is one, too: with a
/// size and pixels, and without headers. A value; copies share the content. Several threads may use it, each
/// with its own copy.
class Photo
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Photo)

public:
    static constexpr qint64 maximumFileSize = qint64(512) << 20; ///< In bytes.
    static constexpr qint64 maximumPixels = 400'000'000;
    /// In pixels per inch, for a photo whose file has no resolution: that of most photo printers.
    static constexpr double assumedResolution = 300;
    static constexpr double pageResolution = 600; ///< In pixels per inch, of a page of a document.

    /// A null photo.
    Photo() = default;

    /// Reads the file's headers, and checks that a JPEG, PNG, HEIF, AVIF, BMP, GIF or WebP file is complete.
    /// Nothing is decoded. Of a file that is not a picture only the first bytes are read, of most JPEG files
    /// only the first and the last ones; others are read completely. The format (see PhotoFormat) is detected
    /// by content, not by name. Any PhotoFault can result.
    static Result<Photo, PhotoFault> open(const QString &path);
    /// A page of a document, from 0 on. Its pixels are those of pageResolution.
    static Photo ofPage(const Document &document, int page);
    /// All pages of a document, or a photo.
    /// @param password of the document; mostly none
    static Result<QList<Photo>, PhotoFault> openAll(const QString &path, const QString &password = {});

    /// The document that it is a page of; null for a photo.
    const Document *document() const { return document_.isNull() ? nullptr : &document_; }
    int page() const { return page_; } ///< From 0 on; -1 for a photo.

    QString path() const { return path_; } ///< As given to open().
    QString fileName() const;
    QString name() const;                         ///< For people: the file's name, with a page's number.
    QByteArray format() const { return format_; } ///< "jpeg", "png", "heif", "avif", ...
    /// The file's bytes, of a page its document's, see PhotoContent. Faults: Changed, TooLarge when memory is
    /// short, and those of PhotoFile::open(). So do decoded() and damage() fail; the functions without a
    /// fault return a null image.
    Result<QByteArray, PhotoFault> content() const;
    /// Which file it is, and in which state, as it was opened.
    FileIdentity identity() const
    {
        return document() ? document_.identity() : content_ ? content_->identity() : FileIdentity();
    }
    PictureKey key() const { return {identity(), page_}; }
    QDateTime modified() const; ///< In whole seconds, UTC.
    /// When it was taken, by the camera's clock: a local time of an unknown zone. Nothing when the file, a
    /// JPEG, PNG, HEIF, AVIF, TIFF or WebP, does not say.
    std::optional<QDateTime> taken() const { return taken_; }
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
    /// checksums are checked when it is opened. In other formats, damage is found only by decoding. Faults:
    /// Damaged, and those of content(), which are not kept.
    std::optional<Failure<PhotoFault>> damage() const;
    /// Whether damage() returns at once.
    bool isChecked() const;

    /// The pixels as stored, not turned by orientation(). Takes seconds and gigabytes for the largest photos.
    /// Faults: Broken, and TooLarge when memory is short.
    Result<QImage, PhotoFault> decoded() const;
    /// The upright photo in sRGB, scaled down to the bound (in pixels) but never enlarged; a null image when
    /// it cannot be decoded. Takes a fraction of a second, so call it on a worker thread.
    QImage preview(const QSize &bound) const;
    /// The same, and faster where the file holds a small copy of the picture that is large enough for the
    /// bound and of the same shape: cameras also write ones with black bars, or cut.
    QImage thumbnail(const QSize &bound) const;
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

    Result<PhotoContent::Bytes, PhotoFault> documentBytes() const;
    QImage rendered(const QSize &whole, const QRectF &part, const std::atomic<bool> *isGivenUp) const;
    QSize sizeWithin(const QSize &bound) const;
    Result<PhotoContent::Bytes, PhotoFault> bytes() const;
    std::optional<Failure<PhotoFault>> inspect(const PhotoFile &file);
    std::optional<Failure<PhotoFault>> inspectJpeg(JpegHeader header);
    std::optional<Failure<PhotoFault>> inspectPng(const QByteArray &content);
    std::optional<Failure<PhotoFault>> inspectHeif(const QByteArray &content);
    std::optional<Failure<PhotoFault>> inspectOther(const QByteArray &content);
    std::optional<Failure<PhotoFault>> checkPixels() const;
    std::optional<QString> findDamage(const QByteArray &content) const;
    QImage decodedWithin(const QByteArray &content, const QSize &storedBound, QString &error) const;
    QImage scaledWithin(const QSize &bound) const;
    QImage decodedPart(const ScaledPart &stored, const std::atomic<bool> *isGivenUp) const;
    QImage inPixelColors(const QImage &image) const;
    QImage embeddedThumbnail(const QSize &bound) const;
    Failure<PhotoFault> truncated() const;

    QString path_;
    Document document_; ///< Null for a photo.
    int page_ = -1;
    QByteArray format_;
    std::shared_ptr<PhotoContent> content_; ///< Null for a null photo.
    QSize storedSize_;
    ExifOrientation orientation_;
    std::optional<double> resolution_;
    std::optional<QDateTime> taken_;
    ColorProfile profile_;
    std::shared_ptr<const JpegHeader> jpeg_;
    std::shared_ptr<const PngHeader> png_;
    std::shared_ptr<Verdict> verdict_; ///< The result of damage(); null for a null photo.
};

} // namespace printdialog
