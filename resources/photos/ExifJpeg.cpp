// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ExifJpeg.h"

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtGui/QColorSpace>
#include <QtGui/QImage>
#include <QtGui/QImageWriter>
#include <QtGui/QTransform>

namespace {

constexpr quint32 dotsPerInch = 300;
constexpr int jpegQuality = 93;

/// The APP1 segment: orientation 6 (turn a quarter clockwise to see it upright), resolution, sRGB, size.
QByteArray exifSegment(const QSize &stored)
{
    enum Type : quint16 { Ascii = 2, Short = 3, Long = 4, Rational = 5, Undefined = 7 };
    const QByteArray description("Corvel sample photo\0", 20);
    constexpr quint32 firstDirectory = 8;
    constexpr quint32 texts = firstDirectory + 2 + 7 * 12 + 4;
    constexpr quint32 resolution = texts + 20;
    constexpr quint32 exifDirectory = resolution + 2 * 8;

    QByteArray tiff;
    QDataStream out(&tiff, QIODevice::WriteOnly); // big-endian, as "MM" announces
    const auto entry = [&out](quint16 tag, Type type, quint32 count, quint32 value) {
        out << tag << static_cast<quint16>(type) << count << (type == Short ? value << 16U : value);
    };
    out.writeRawData("MM\0*", 4);
    out << firstDirectory << quint16(7);
    entry(0x010E, Ascii, 20, texts);            // ImageDescription
    entry(0x0112, Short, 1, 6);                 // Orientation
    entry(0x011A, Rational, 1, resolution);     // XResolution
    entry(0x011B, Rational, 1, resolution + 8); // YResolution
    entry(0x0128, Short, 1, 2);                 // ResolutionUnit: inch
    entry(0x0213, Short, 1, 1);                 // YCbCrPositioning: centred
    entry(0x8769, Long, 1, exifDirectory);      // Exif directory
    out << quint32(0);
    out.writeRawData(description.constData(), static_cast<int>(description.size()));
    out << dotsPerInch << quint32(1) << dotsPerInch << quint32(1) << quint16(6);
    entry(0x9000, Undefined, 4, 0x30323332); // ExifVersion 0232
    entry(0x9101, Undefined, 4, 0x01020300); // ComponentsConfiguration YCbCr
    entry(0xA000, Undefined, 4, 0x30313030); // FlashpixVersion 0100
    entry(0xA001, Short, 1, 1);              // ColorSpace: sRGB
    entry(0xA002, Long, 1, static_cast<quint32>(stored.width()));
    entry(0xA003, Long, 1, static_cast<quint32>(stored.height()));
    out << quint32(0);

    QByteArray segment;
    QDataStream head(&segment, QIODevice::WriteOnly);
    head << quint16(0xFFE1) << static_cast<quint16>(2 + 6 + tiff.size());
    head.writeRawData("Exif\0\0", 6);
    return segment + tiff;
}

} // namespace

QByteArray turnedJpeg(const QImage &upright)
{
    QImage stored = upright.transformed(QTransform().rotate(-90));
    stored.setColorSpace(QColorSpace::SRgb);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(jpegQuality);
    writer.setOptimizedWrite(true);
    if (!writer.write(stored))
        return {};
    // Exif wants its segment first, so it takes the place of the JFIF one after the start-of-image marker.
    qsizetype rest = 2;
    if (jpeg.mid(2, 2) == QByteArray("\xFF\xE0"))
        rest += 2 + static_cast<uchar>(jpeg[4]) * 256 + static_cast<uchar>(jpeg[5]);
    return jpeg.first(2) + exifSegment(stored.size()) + jpeg.sliced(rest);
}
