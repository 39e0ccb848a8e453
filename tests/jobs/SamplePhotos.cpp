// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SamplePhotos.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QtEndian>
#include <QtGui/QColorSpace>
#include <QtGui/QImageWriter>
#include <QtGui/QPainter>

#include <sys/resource.h>
#include <unistd.h>
#include <zlib.h>

using namespace Qt::StringLiterals;

namespace samples {
namespace {

QByteArray segment(char marker, const QByteArray &content)
{
    const auto size = content.size() + 2;
    return QByteArray("\xff") + marker + static_cast<char>(size >> 8) + static_cast<char>(size) + content;
}

QByteArray number(quint32 value)
{
    QByteArray bytes(sizeof(value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

} // namespace

QImage quarters(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    const QRect quarter(QPoint(0, 0), size / 2);
    QPainter painter(&image);
    painter.fillRect(image.rect(), Qt::yellow);
    painter.fillRect(quarter, Qt::red);
    painter.fillRect(quarter.translated(quarter.width(), 0), Qt::green);
    painter.fillRect(quarter.translated(0, quarter.height()), Qt::blue);
    return image;
}

QByteArray pngOf(const QByteArray &header, const QByteArray &rows, const QByteArray &behind)
{
    const auto chunk = [](const QByteArray &typed) {
        const auto sum = crc32(0, reinterpret_cast<const Bytef *>(typed.constData()), uInt(typed.size()));
        return number(quint32(typed.size() - 4)) + typed + number(quint32(sum));
    };
    constexpr qsizetype lengthSize = 4; // which qCompress() puts before the data
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR" + header) + chunk("PLTE\xff\xff\xff") +
           chunk("IDAT" + qCompress(rows).sliced(lengthSize) + behind) + chunk("IEND");
}

QByteArray pngHeader(const QSize &size, char colorType, bool isInterlaced)
{
    return number(quint32(size.width())) + number(quint32(size.height())) + '\x08' + colorType +
           QByteArray(2, '\0') + (isInterlaced ? '\1' : '\0');
}

QByteArray noise(qsizetype size)
{
    QRandomGenerator generator(1);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    return bytes;
}

QImage grain(const QSize &size)
{
    const QByteArray values = noise(qsizetype(size.width()) * size.height());
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int value = static_cast<quint8>(values[qsizetype(y) * size.width() + x]) / 8;
            image.setPixel(x, y, qRgb(x * 200 / size.width() + value, y * 200 / size.height(), value));
        }
    }
    return image;
}

QString cornersOf(const QImage &image, const QRectF &area, double inside)
{
    const QRectF inner = area.adjusted(inside, inside, -inside, -inside);
    QString names;
    for (const QPointF &corner :
         {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()}) {
        const QColor color = image.pixelColor(corner.toPoint());
        const int brightness = (color.red() > 128) * 4 + (color.green() > 128) * 2 + (color.blue() > 128);
        names += u"?BGGRRYW"_s[brightness];
    }
    return names;
}

QByteArray encoded(const QImage &image, const char *format, bool progressive)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    if (!writer.write(image))
        qFatal("cannot make a %s", format);
    return bytes;
}

QByteArray withOrientation(const QByteArray &jpeg, int orientation, bool bigEndian)
{
    const char value = static_cast<char>(orientation);
    // Two entries: one of another tag (ImageWidth), then the orientation.
    QByteArray tiff = bigEndian ? QByteArray("MM\0*\0\0\0\x08\0\x02"
                                             "\x01\0\0\x03\0\0\0\x01\0\x07\0\0"
                                             "\x01\x12\0\x03\0\0\0\x01\0",
                                             31)
                                : QByteArray("II*\0\x08\0\0\0\x02\0"
                                             "\0\x01\x03\0\x01\0\0\0\x07\0\0\0"
                                             "\x12\x01\x03\0\x01\0\0\0",
                                             30);
    tiff += value;
    tiff += QByteArray(bigEndian ? 6 : 7, '\0');
    return withExif(jpeg, tiff);
}

QByteArray withExif(const QByteArray &jpeg, const QByteArray &tiff)
{
    constexpr qsizetype jfifSize = 20; // with the marker of the file's begin
    return jpeg.first(jfifSize) + segment('\xe1', QByteArray("Exif\0\0", 6) + tiff) + jpeg.sliced(jfifSize);
}

QByteArray tiffWithResolution(int perInch)
{
    QByteArray tiff("II*\0\x08\0\0\0\x02\0"
                    "\x1a\x01\x05\0\x01\0\0\0\x26\0\0\0"
                    "\x1b\x01\x05\0\x01\0\0\0\x26\0\0\0"
                    "\0\0\0\0"
                    "\0\0\0\0\x01\0\0\0",
                    46);
    tiff[38] = static_cast<char>(perInch);
    tiff[39] = static_cast<char>(perInch >> 8);
    return tiff;
}

QByteArray swappedProfile()
{
    return QColorSpace(QPointF(0.3127, 0.329), QPointF(0.3, 0.6), QPointF(0.64, 0.33), QPointF(0.15, 0.06),
                       QColorSpace::TransferFunction::SRgb)
        .iccProfile();
}

QByteArray withProfile(const QByteArray &jpeg, const QByteArray &icc)
{
    const qsizetype half = icc.size() / 2;
    const QByteArray name("ICC_PROFILE\0", 12);
    // The parts the wrong way round, which is allowed.
    return jpeg.first(2) + segment('\xe2', name + "\2\2" + icc.sliced(half)) +
           segment('\xe2', name + "\1\2" + icc.first(half)) + jpeg.sliced(2);
}

QByteArray redCmykJpeg()
{
    return QByteArray::fromBase64(
        "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwADAgIDAgIDAwMDBAMDBAUIBQUEBAUKBwcGCAwKDAwLCgsLDQ4SEA0OEQ4LCxAWEBETFBUV"
        "FQwPFxgWFBgSFBUU/9sAQwEDBAQFBAUJBQUJFA0LDRQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQU"
        "FBQUFBQU/8AAFAgAEAAQBAERAAIRAQMRAQQRAP/EABYAAQEBAAAAAAAAAAAAAAAAAAAICf/EABQQAQAAAAAAAAAAAAAAAAAAAAD/"
        "xAAWAQEBAQAAAAAAAAAAAAAAAAAABwn/xAAUEQEAAAAAAAAAAAAAAAAAAAAA/9oADgQBAAIRAxEEAAA/AKIXNlU1TAAAAf/Z");
}

QByteArray undecodableJpeg()
{
    QByteArray jpeg = encoded(quarters(QSize(300, 200)), "jpeg");
    jpeg[jpeg.indexOf("\xff\xc0") + 12] = 3; // no such quantization table
    return jpeg.insert(2, "\xff\xff");       // which not every PDF program skips
}

void store(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot store %s", qPrintable(path));
}

QByteArray load(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

OrdinaryRights::OrdinaryRights()
{
    if (getuid() == 0 && seteuid(65534) != 0)
        qFatal("cannot give up the rights of root");
}

OrdinaryRights::~OrdinaryRights()
{
    if (seteuid(getuid()) != 0)
        qFatal("cannot take the rights back");
}

MemoryLimit::MemoryLimit(quint64 bytes)
{
    const quint64 pages = load(u"/proc/self/statm"_s).split(' ').constFirst().toULongLong();
    rlimit limit = {};
    getrlimit(RLIMIT_AS, &limit);
    before_ = limit.rlim_cur;
    limit.rlim_cur = pages * quint64(sysconf(_SC_PAGESIZE)) + bytes;
    if (pages == 0 || setrlimit(RLIMIT_AS, &limit) != 0)
        qFatal("cannot limit the memory");
}

MemoryLimit::~MemoryLimit()
{
    rlimit limit = {};
    getrlimit(RLIMIT_AS, &limit);
    limit.rlim_cur = before_;
    setrlimit(RLIMIT_AS, &limit);
}

} // namespace samples
