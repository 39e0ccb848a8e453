// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"

#include "ContentReader.h"
#include "ExifData.h"
#include "HeifPicture.h"
#include "JpegDamage.h"
#include "PhotoFormat.h"
#include "PictureEnd.h"
#include "PlainText.h"
#include "PngPixels.h"
#include "QuietDecoding.h"
#include "TiffDamage.h"
#include "WebpChunks.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QtEndian>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <new>

namespace printdialog {
namespace {

constexpr qint64 headSize = 4096;
/// Of a JPEG file, in bytes: enough for the headers that cameras write.
constexpr qint64 jpegHeadersSize = 128 << 10;
constexpr int maximumRasterSide = 32767; ///< In pixels; the limit of QPainter.

/// The size of a GIF's logical screen (GIF89a, 18); empty when the file is cut off before it.
QSize gifCanvas(QByteArrayView gif)
{
    if (gif.size() < 10)
        return {};
    return {qFromLittleEndian<quint16>(gif.data() + 6), qFromLittleEndian<quint16>(gif.data() + 8)};
}

} // namespace

/// The result of checking the pixels, shared by copies of a photo.
struct Photo::Verdict
{
    std::mutex mutex; ///< Held while checking.
    std::atomic<bool> isThere = false;
    std::optional<QString> damage;
};

Result<Photo, PhotoFault> Photo::open(const QString &path)
{
    auto file = PhotoFile::open(path);
    if (!file)
        return file.failure();

    Photo photo;
    photo.path_ = path;
    photo.verdict_ = std::make_shared<Verdict>();
    photo.content_ = std::make_shared<PhotoContent>(path, file->identity());
    const PhotoFormat format = PhotoFormat::of(file->part(0, headSize));
    if (!format.isReadable())
        return format.failure(path);
    photo.format_ = format.name();
    if (file->size() > maximumFileSize)
        return Failure<PhotoFault>{
            PhotoFault::TooLarge,
            tr("\"%1\" is too large: %2, where a photo may have %3. Save it with fewer pixels, or as JPEG.")
                .arg(plainText(path), QLocale().formattedDataSize(file->size()),
                     QLocale().formattedDataSize(maximumFileSize)),
            {}};
    if (auto failure = photo.inspect(*file))
        return *failure;
    if (auto failure = photo.checkPixels())
        return *failure;
    return photo;
}

std::optional<Failure<PhotoFault>> Photo::inspect(const PhotoFile &file)
{
    if (format_ == "jpeg") {
        constexpr qint64 markerSize = 2;
        if (auto header = JpegHeader::ofEnds(file.part(0, jpegHeadersSize),
                                             file.part(file.size() - markerSize, markerSize)))
            return inspectJpeg(*std::move(header));
    }
    const auto content = bytes();
    if (!content)
        return content.failure();
    return format_ == "jpeg"              ? inspectJpeg(JpegHeader::read(**content))
           : format_ == "png"             ? inspectPng(**content)
           : PhotoFormat::isHeif(format_) ? inspectHeif(**content)
                                          : inspectOther(**content);
}

Result<PhotoContent::Bytes, PhotoFault> Photo::bytes() const
{
    try {
        if (document())
            return documentBytes();
        auto content = content_ ? content_->read() : std::make_shared<const QByteArray>();
        // Whoever wants to can write to a file and set its time back. The rows of another PNG might be
        // shorter.
        if (content && png_ && !(*content)->startsWith(png_->beginning))
            return PhotoFile::changed(path_);
        return content;
    } catch (const std::bad_alloc &) {
        return memoryFailure();
    }
}

Result<QByteArray, PhotoFault> Photo::content() const
{
    const auto content = bytes();
    if (!content)
        return content.failure();
    return **content;
}

QDateTime Photo::modified() const
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    return QDateTime::fromSecsSinceEpoch(identity().modified / nanoseconds, Qt::UTC);
}

QString Photo::fileName() const
{
    return document() ? document_.name() : QFileInfo(path_).fileName();
}

std::optional<Failure<PhotoFault>> Photo::inspectJpeg(JpegHeader header)
{
    if (header.state == JpegHeader::State::Truncated)
        return truncated();
    if (header.state == JpegHeader::State::Broken)
        return broken(QStringLiteral("the JPEG segments make no picture"));
    if (!header.isUsual)
        return Failure<PhotoFault>{PhotoFault::UnknownType,
                                   tr("\"%1\" is a JPEG of a rare kind, lossless or with more than 8 bits, "
                                      "which cannot be printed. Save it as a usual JPEG in a photo program.")
                                       .arg(plainText(path_)),
                                   {}};
    storedSize_ = header.size;
    orientation_ = header.orientation;
    resolution_ = header.resolution;
    taken_ = header.taken;
    // Decoders convert CMYK to RGB, so a profile must have as many components as the file's colors.
    if (ColorProfile profile = ColorProfile::fromIcc(header.iccProfile);
        profile.components() == header.components)
        profile_ = std::move(profile);
    header.iccProfile.clear(); // one copy is enough, and profile_ shares it with other photos
    jpeg_ = std::make_shared<const JpegHeader>(std::move(header));
    return std::nullopt;
}

std::optional<Failure<PhotoFault>> Photo::inspectPng(const QByteArray &content)
{
    png_ = std::make_shared<const PngHeader>(PngHeader::read(content));
    const PngHeader &header = *png_;
    if (header.state == PngHeader::State::Broken)
        return broken(QStringLiteral("a PNG checksum does not match"));
    if (header.state == PngHeader::State::DamagedPixels)
        verdict_->damage = QStringLiteral("the checksum of PNG pixels does not match");
    if (header.state == PngHeader::State::Truncated)
        return truncated();
    if (header.size.isEmpty())
        return broken(QStringLiteral("the PNG header names no size"));
    if (!header.isValid)
        return broken(QStringLiteral("there are no such PNG pixels"));
    storedSize_ = header.size;
    const qint64 pixels = qint64(storedSize_.width()) * storedSize_.height();
    if (header.isInterlaced && pixels > PngPixels::largestInterlaced / header.decodedChannels)
        return Failure<PhotoFault>{
            PhotoFault::TooLarge,
            tr("\"%1\" is an interlaced PNG of %2 x %3 pixels, which takes too much memory. Save it without "
               "interlacing, or as JPEG.")
                .arg(plainText(path_), QString::number(storedSize_.width()),
                     QString::number(storedSize_.height())),
            {}};
    orientation_ = header.orientation;
    resolution_ = header.resolution;
    taken_ = header.taken;
    profile_ = header.profile;
    return std::nullopt;
}

/// libheif applies all turns while decoding, so a repeated Exif orientation is ignored.
std::optional<Failure<PhotoFault>> Photo::inspectHeif(const QByteArray &content)
{
    if (!hasPictureEnd(format_, content))
        return truncated();
    const QuietDecoding quiet;
    const auto header = HeifPicture::read(content);
    if (!header)
        return broken(header.failure().detail);
    storedSize_ = header->size;
    profile_ = header->profile;
    taken_ = header->taken;
    return std::nullopt;
}

std::optional<Failure<PhotoFault>> Photo::inspectOther(const QByteArray &content)
{
    if (!hasPictureEnd(format_, content))
        return truncated();
    const QuietDecoding quiet;
    ContentReader reader(content, format_);
    storedSize_ = reader->size();
    if (format_ == "bmp" && storedSize_.height() < 0) // a negative height: rows are stored top-down
        storedSize_.setHeight(-std::max(storedSize_.height(), -INT_MAX));
    if (storedSize_.isEmpty())
        return broken(reader->errorString());
    orientation_ = ExifOrientation::fromTransformations(reader->transformation());
    if (format_ == "gif") {
        // Qt reports the size of the frame, but decodes the canvas, which may be far larger. A canvas side of
        // 0 means that of the frame.
        const QSize canvas = gifCanvas(content);
        if ((canvas.width() > 0 && canvas.width() != storedSize_.width()) ||
            (canvas.height() > 0 && canvas.height() != storedSize_.height()))
            return broken(QStringLiteral("the canvas and the frame differ in size"));
    } else if (format_ == "webp") {
        const ExifData data = ExifData::fromTiff(webpChunk(content, "EXIF"));
        orientation_ = data.orientation;
        taken_ = data.taken;
        profile_ = ColorProfile::fromIcc(webpChunk(content, "ICCP").toByteArray());
    } else if (format_ == "tiff") {
        const ExifData data = ExifData::fromTiff(content);
        if (data.isReduced)
            return PhotoFormat::ofCamera().failure(path_);
        resolution_ = data.resolution;
        taken_ = data.taken;
        profile_ = ColorProfile::fromIcc(data.iccProfile);
    }
    return std::nullopt;
}

std::optional<Failure<PhotoFault>> Photo::checkPixels() const
{
    const qint64 pixels = qint64(storedSize_.width()) * storedSize_.height();
    const int side = std::max(storedSize_.width(), storedSize_.height());
    if (pixels <= maximumPixels && (isEmbeddable() || side <= maximumRasterSide))
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

bool Photo::isChecked() const
{
    return (format_ != "jpeg" && format_ != "webp" && format_ != "tiff") || verdict_->isThere;
}

std::optional<QString> Photo::findDamage(const QByteArray &content) const
{
    if (format_ == "jpeg")
        return jpegDamage(content);
    if (format_ == "tiff")
        return tiffDamage(content);
    // WebP has no checksums, and any bytes decode to some picture. But a damaged one hardly ever needs
    // exactly as many bytes as there are, whereas an intact file cannot be decoded with fewer. Printing finds
    // further damage.
    ContentReader::allow(storedSize_);
    ContentReader reader(shortenedWebp(content), format_);
    if (reader->read().isNull())
        return std::nullopt;
    return QStringLiteral("the WebP picture ends before its data do");
}

std::optional<Failure<PhotoFault>> Photo::damage() const
{
    if (!isChecked()) {
        const std::lock_guard lock(verdict_->mutex);
        if (!verdict_->isThere) {
            const auto content = bytes();
            if (!content)
                return content.failure();
            verdict_->damage = findDamage(**content);
            verdict_->isThere = true;
        }
    }
    if (!verdict_ || !verdict_->damage)
        return std::nullopt;
    return Failure<PhotoFault>{
        PhotoFault::Damaged,
        tr("\"%1\" is damaged: a part of the picture is missing or wrong. Copy it again "
           "from where it came from.")
            .arg(plainText(path_)),
        *verdict_->damage};
}

Failure<PhotoFault> Photo::broken(const QString &detail) const
{
    return {PhotoFault::Broken,
            tr("\"%1\" is damaged and cannot be shown. Copy it again, or save it again in a photo program.")
                .arg(plainText(path_)),
            detail};
}

Failure<PhotoFault> Photo::memoryFailure() const
{
    return {
        PhotoFault::TooLarge,
        tr("There is not enough memory for \"%1\". Scale it down in a photo program.").arg(plainText(path_)),
        {}};
}

} // namespace printdialog
