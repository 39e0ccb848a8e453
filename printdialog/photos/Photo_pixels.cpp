// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"

#include "ContentReader.h"
#include "HeifPicture.h"
#include "JpegPart.h"
#include "PageRendering.h"
#include "PhotoFormat.h"
#include "PngPicture.h"
#include "QuietDecoding.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace printdialog {
namespace {

/// Composed on white, as it is printed; null when memory is short.
QImage onPaper(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage paper(image.size(), QImage::Format_RGB32);
    if (paper.isNull())
        return paper;
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(QPoint(0, 0), image);
    return paper;
}

/// The pixels that a part of the unit square covers, also partly; at least one.
QRect pixelsOf(const QRectF &part, const QSize &size)
{
    constexpr double rounding = 1e-6; // which must not add a pixel
    const auto along = [](double from, double to, int length) {
        const int first = std::clamp(static_cast<int>(std::floor(from * length + rounding)), 0, length - 1);
        const int last = static_cast<int>(std::ceil(to * length - rounding)) - 1;
        return std::pair(first, std::clamp(last, first, length - 1));
    };
    const auto [left, right] = along(part.left(), part.right(), size.width());
    const auto [top, bottom] = along(part.top(), part.bottom(), size.height());
    return {QPoint(left, top), QPoint(right, bottom)};
}

} // namespace

/// Decodes, scaled down while reading where the format can do that and the bound is not empty.
QImage Photo::decodedWithin(const QByteArray &content, const QSize &storedBound, QString &error) const
{
    const QuietDecoding quiet;
    QImage image;
    if (PhotoFormat::isHeif(format_)) {
        auto picture = HeifPicture::decode(content);
        if (picture)
            image = *std::move(picture);
        else
            error = picture.failure().detail;
    } else if (png_) {
        image = decodedPng(content, *png_, storedBound, error);
    } else {
        ContentReader::allow(storedSize_);
        ContentReader reader(content, format_);
        if (!storedBound.isEmpty())
            reader->setScaledSize(storedBound);
        image = reader->read();
        error = reader->errorString();
    }
    // All other code relies on the size in the file's header.
    if (!image.isNull() && image.size() != storedSize_ && image.size() != storedBound) {
        error = QStringLiteral("the pixels are %1 x %2").arg(image.width()).arg(image.height());
        return {};
    }
    return image;
}

/// Of a page; a null image when that fails.
QImage Photo::rendered(const QSize &whole, const QRectF &part, const std::atomic<bool> *isGivenUp) const
{
    auto image = renderPage(document_, page_, whole, part, isGivenUp);
    return image ? *std::move(image) : QImage();
}

Result<QImage, PhotoFault> Photo::decoded() const
{
    if (document())
        return broken(QStringLiteral("a page of a document has no pixels of its own"));
    const auto content = bytes();
    if (!content)
        return content.failure();
    QString error;
    QImage image = decodedWithin(**content, {}, error);
    if (!image.isNull())
        return image;
    // Qt does not report the reason, so try to allocate its largest format.
    if (QImage(storedSize_, QImage::Format_RGBA64).isNull())
        return memoryFailure();
    return broken(error);
}

/// Scaled down to the bound, or as it is.
QSize Photo::sizeWithin(const QSize &bound) const
{
    const QSize seen = orientedSize();
    return seen.width() > bound.width() || seen.height() > bound.height()
               ? seen.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1))
               : seen;
}

/// Stored pixels in the stored direction, scaled down to the upright bound.
QImage Photo::scaledWithin(const QSize &bound) const
{
    const QSize seen = orientedSize();
    if (seen.isEmpty() || bound.isEmpty())
        return {};
    if (document())
        return rendered(sizeWithin(bound), QRectF(0, 0, 1, 1), nullptr);
    QSize scaled;
    if (const QSize wanted = sizeWithin(bound); wanted != seen)
        scaled = orientation_.seenSize(wanted);
    const auto content = bytes();
    if (!content)
        return {};
    QString error;
    QImage image = decodedWithin(**content, scaled, error);
    if (!scaled.isEmpty() && !image.isNull() && image.size() != scaled)
        image = image.scaled(scaled, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

QImage Photo::preview(const QSize &bound) const
{
    return orientation_.applied(profile_.toScreen(scaledWithin(bound)));
}

QImage Photo::thumbnail(const QSize &bound) const
{
    const QImage embedded = embeddedThumbnail(bound);
    return embedded.isNull() ? preview(bound) : embedded;
}

/// A null image when there is none that will do.
QImage Photo::embeddedThumbnail(const QSize &bound) const
{
    constexpr int longestSide = 2048;
    constexpr double largestDifference = 0.01; // from rounding to whole pixels
    if (!jpeg_ || !jpeg_->thumbnail || bound.isEmpty())
        return {};
    const auto jpeg = content_->read(jpeg_->thumbnail->offset, jpeg_->thumbnail->size);
    if (!jpeg)
        return {};
    ContentReader reader(*jpeg, format_);
    const QSize size = reader->size();
    const QSize wanted = storedSize_.scaled(orientation_.seenSize(bound), Qt::KeepAspectRatio)
                             .expandedTo(QSize(1, 1))
                             .boundedTo(storedSize_);
    if (size.width() < wanted.width() || size.height() < wanted.height() ||
        std::max(size.width(), size.height()) > longestSide)
        return {};
    const double stretch =
        double(size.width()) * storedSize_.height() / (double(size.height()) * storedSize_.width());
    if (std::abs(stretch - 1) > largestDifference)
        return {};
    const QImage image = reader->read().scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return orientation_.applied(profile_.toScreen(image));
}

QImage Photo::pixels(const QSize &bound) const
{
    return orientation_.applied(inPixelColors(scaledWithin(bound)));
}

QByteArray Photo::pixelProfile() const
{
    return profile_.components() == 3 && !profile_.isSrgb() ? profile_.icc() : QByteArray();
}

PhotoPart Photo::part(const QRectF &part, const QSize &whole, const std::atomic<bool> *isGivenUp) const
{
    const QSize size = whole.boundedTo(orientedSize());
    const QRectF shown = part & QRectF(0, 0, 1, 1);
    if (size.isEmpty() || shown.isEmpty())
        return {};
    const QRect seen = pixelsOf(shown, size);
    const QRectF area(double(seen.x()) / size.width(), double(seen.y()) / size.height(),
                      double(seen.width()) / size.width(), double(seen.height()) / size.height());
    if (document())
        return {rendered(size, area, isGivenUp), area};
    const QSize storedWhole = orientation_.seenSize(size);
    const QRect stored = pixelsOf(orientation_.transform().inverted().mapRect(area), storedWhole);
    return {orientation_.applied(inPixelColors(decodedPart({storedWhole, stored}, isGivenUp))), area};
}

/// The direction is that of the stored pixels.
QImage Photo::decodedPart(const ScaledPart &stored, const std::atomic<bool> *isGivenUp) const
{
    const auto content = bytes();
    if (!content)
        return {};
    const QuietDecoding quiet;
    QString error;
    if (jpeg_)
        return decodedJpegPart(**content, storedSize_, stored, isGivenUp);
    if (png_)
        return decodedPngPart(**content, *png_, stored, error, isGivenUp);
    const QImage picture = decodedWithin(**content, {}, error);
    const bool isGrey =
        picture.format() == QImage::Format_Grayscale8 || picture.format() == QImage::Format_Grayscale16;
    AreaScaler scaler(storedSize_, stored, isGrey ? 1 : 3);
    const QImage needed = onPaper(picture.copy(scaler.needed()))
                              .convertToFormat(isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    if (needed.isNull() || scaler.image().isNull())
        return {};
    for (int y = 0; y < needed.height(); ++y)
        scaler.addRow(needed.constScanLine(y));
    return scaler.image();
}

/// In the colors of pixels().
QImage Photo::inPixelColors(const QImage &image) const
{
    const QImage opaque = onPaper(image);
    return (profile_.components() == 3 ? opaque : profile_.toScreen(opaque))
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace printdialog
