// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"

#include "ContentReader.h"
#include "HeifPicture.h"
#include "PhotoFormat.h"
#include "PngPicture.h"
#include "QuietDecoding.h"

#include <QtGui/QPainter>

namespace printdialog {

/// Decodes, scaled down while reading where the format can do that and the bound is not empty.
QImage Photo::decodedWithin(const QSize &storedBound, QString &error) const
{
    const QuietDecoding quiet;
    QImage image;
    if (PhotoFormat::isHeif(format_)) {
        auto picture = HeifPicture::decode(content_);
        if (picture)
            image = *std::move(picture);
        else
            error = picture.failure().detail;
    } else if (png_) {
        image = decodedPng(content_, *png_, storedBound, error);
    } else {
        ContentReader::allow(storedSize_);
        ContentReader reader(content_, format_);
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

Result<QImage, PhotoFault> Photo::decoded() const
{
    QString error;
    QImage image = decodedWithin({}, error);
    if (!image.isNull())
        return image;
    // Qt does not report the reason, so try to allocate its largest format.
    if (QImage(storedSize_, QImage::Format_RGBA64).isNull())
        return memoryFailure();
    return broken(error);
}

/// Stored pixels in the stored direction, scaled down to the upright bound.
QImage Photo::scaledWithin(const QSize &bound) const
{
    const QSize seen = orientedSize();
    if (seen.isEmpty() || bound.isEmpty())
        return {};
    QSize scaled;
    if (seen.width() > bound.width() || seen.height() > bound.height())
        scaled = orientation_.seenSize(seen.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    QString error;
    QImage image = decodedWithin(scaled, error);
    if (!scaled.isEmpty() && !image.isNull() && image.size() != scaled)
        image = image.scaled(scaled, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

QImage Photo::preview(const QSize &bound) const
{
    return orientation_.applied(profile_.toScreen(scaledWithin(bound)));
}

QImage Photo::pixels(const QSize &bound) const
{
    return orientation_.applied(inPixelColors(scaledWithin(bound)));
}

QByteArray Photo::pixelProfile() const
{
    return profile_.components() == 3 && !profile_.isSrgb() ? profile_.icc() : QByteArray();
}

/// In the colors of pixels(), composed on white as it is printed.
QImage Photo::inPixelColors(const QImage &image) const
{
    const QImage colored = profile_.components() == 3 ? image : profile_.toScreen(image);
    if (!colored.hasAlphaChannel())
        return colored.convertToFormat(QImage::Format_RGB32);
    QImage paper(colored.size(), QImage::Format_RGB32);
    if (paper.isNull())
        return paper;
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(QPoint(0, 0), colored);
    return paper;
}

} // namespace printdialog
