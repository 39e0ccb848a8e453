// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"

#include "JpegHeader.h"
#include "PictureEnd.h"
#include "PlainText.h"
#include "PngChunks.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QMutex>
#include <QtGui/QImageReader>

#include <algorithm>
#include <array>

namespace printdialog {
namespace {

constexpr qint64 headSize = 4096;
constexpr int maximumRasterSide = 32767; ///< In pixels; cairo's images are no larger.

/// The picture's format by its first bytes; empty when it is none. Drawings and formats that are recognized
/// by a file's name alone are left out.
QByteArray formatOf(QByteArray head)
{
    static constexpr std::array photoFormats{"avif", "bmp", "gif", "heic", "heif", "jp2",  "jpeg", "jxl",
                                             "pbm",  "pgm", "png", "ppm",  "tif",  "tiff", "webp"};
    if (head.startsWith("\xff\xd8\xff"))
        return QByteArrayLiteral("jpeg");
    QBuffer buffer(&head);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    return std::find(photoFormats.begin(), photoFormats.end(), format) != photoFormats.end() ? format
                                                                                             : QByteArray();
}

/// Lets the image reader allocate what this photo takes. The limit holds for the whole program and other
/// threads may be decoding, so it only ever grows; maximumPixels is its ceiling.
void allowDecoding(const QSize &size)
{
    constexpr qint64 bytesPerPixel = 8;
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    const auto mebibytes = static_cast<int>((qint64(size.width()) * size.height() * bytesPerPixel >> 20) + 1);
    if (const int limit = QImageReader::allocationLimit(); limit != 0 && limit < mebibytes)
        QImageReader::setAllocationLimit(mebibytes);
}

/// A reader over a photo's content that takes the format for granted and leaves the orientation alone.
class ContentReader
{
public:
    ContentReader(const QByteArray &content, const QByteArray &format)
        : content_(content)
        , buffer_(&content_)
    {
        buffer_.open(QIODevice::ReadOnly);
        reader_.setAutoDetectImageFormat(false);
        reader_.setFormat(format);
        reader_.setDevice(&buffer_);
        reader_.setAutoTransform(false);
    }

    QImageReader *operator->() { return &reader_; }

private:
    QByteArray content_;
    QBuffer buffer_;
    QImageReader reader_;
};

} // namespace

Result<Photo, PhotoFault> Photo::open(const QString &path)
{
    auto file = PhotoFile::open(path);
    if (!file)
        return file.failure();

    Photo photo;
    photo.path_ = path;
    photo.modified_ = file->modified();
    photo.format_ = formatOf(file->head(headSize));
    if (photo.format_.isEmpty())
        return Failure<PhotoFault>{
            PhotoFault::UnknownType,
            tr("\"%1\" is not a photo of a known kind, whatever its name says. Save it as JPEG or PNG.")
                .arg(plainText(path)),
            {}};
    if (file->size() > maximumFileSize)
        return Failure<PhotoFault>{
            PhotoFault::TooLarge,
            tr("\"%1\" is too large: %2, where a photo may have %3. Save it with fewer pixels, or as JPEG.")
                .arg(plainText(path), QLocale().formattedDataSize(file->size()),
                     QLocale().formattedDataSize(maximumFileSize)),
            {}};

    auto content = file->content();
    if (!content)
        return content.failure();
    photo.content_ = *std::move(content);
    if (auto failure = photo.format_ == "jpeg" ? photo.inspectJpeg() : photo.inspectOther())
        return *failure;
    if (auto failure = photo.checkPixels())
        return *failure;
    return photo;
}

QString Photo::fileName() const
{
    return QFileInfo(path_).fileName();
}

std::optional<Failure<PhotoFault>> Photo::inspectJpeg()
{
    const JpegHeader header = JpegHeader::read(content_);
    if (header.state == JpegHeader::State::Truncated)
        return truncated();
    if (header.state == JpegHeader::State::Broken)
        return broken(QStringLiteral("the JPEG segments make no picture"));
    storedSize_ = header.size;
    orientation_ = header.orientation;
    isEmbeddable_ = header.isEmbeddable;
    return std::nullopt;
}

std::optional<Failure<PhotoFault>> Photo::inspectOther()
{
    const PngChunks chunks = format_ == "png" ? checkPngChunks(content_) : PngChunks::Whole;
    if (chunks == PngChunks::Broken)
        return broken(QStringLiteral("a PNG checksum does not match"));
    if (chunks == PngChunks::Truncated || !hasPictureEnd(format_, content_))
        return truncated();
    ContentReader reader(content_, format_);
    storedSize_ = reader->size();
    if (storedSize_.isEmpty())
        return broken(reader->errorString());
    orientation_ = ExifOrientation::fromTransformations(reader->transformation());
    return std::nullopt;
}

std::optional<Failure<PhotoFault>> Photo::checkPixels() const
{
    const qint64 pixels = qint64(storedSize_.width()) * storedSize_.height();
    const int side = std::max(storedSize_.width(), storedSize_.height());
    if (pixels <= maximumPixels && (isEmbeddable_ || side <= maximumRasterSide))
        return std::nullopt;
    return Failure<PhotoFault>{PhotoFault::TooLarge,
                               tr("\"%1\" is too large: %2 x %3 pixels. Scale it down in a photo program.")
                                   .arg(plainText(path_), QString::number(storedSize_.width()),
                                        QString::number(storedSize_.height())),
                               {}};
}

Failure<PhotoFault> Photo::truncated() const
{
    return {PhotoFault::Truncated,
            tr("\"%1\" is cut short: its end is missing. Copy it again from where it came from.")
                .arg(plainText(path_)),
            {}};
}

Failure<PhotoFault> Photo::broken(const QString &detail) const
{
    return {PhotoFault::Broken,
            tr("\"%1\" is damaged and cannot be shown. Copy it again, or save it anew in a photo program.")
                .arg(plainText(path_)),
            detail};
}

Result<QImage, PhotoFault> Photo::decoded() const
{
    allowDecoding(storedSize_);
    ContentReader reader(content_, format_);
    QImage image = reader->read();
    if (image.isNull())
        return broken(reader->errorString());
    return image;
}

QImage Photo::preview(const QSize &bound) const
{
    const QSize seen = orientedSize();
    if (seen.isEmpty() || bound.isEmpty())
        return {};
    allowDecoding(storedSize_);
    ContentReader reader(content_, format_);
    if (seen.width() > bound.width() || seen.height() > bound.height()) {
        const QSize scaled = seen.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
        reader->setScaledSize(orientation_.seenSize(scaled));
    }
    return orientation_.applied(reader->read());
}

} // namespace printdialog
