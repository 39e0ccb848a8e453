// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <array>

/// Photos for tests, whose corners show how they were turned and mirrored.
namespace samples {

/// The corners top left, top right, bottom left, bottom right of the picture as stored: red, green, blue,
/// yellow.
inline const QString storedCorners = QStringLiteral("RGBY");

/// The same corners when a photo of an Exif orientation (1 to 8) is seen upright.
inline const std::array<QString, 9> seenCorners{
    QString(),
    QStringLiteral("RGBY"), // upright
    QStringLiteral("GRYB"), // mirrored
    QStringLiteral("YBGR"), // upside down
    QStringLiteral("BYRG"), // upside down and mirrored
    QStringLiteral("RBGY"), // on its side and mirrored
    QStringLiteral("BRYG"), // its top is on the right
    QStringLiteral("YGBR"), // on its other side and mirrored
    QStringLiteral("GYRB"), // its top is on the left
};

/// Four quarters in the colors of storedCorners.
QImage quarters(const QSize &size);
/// A picture with some detail in each of its pixels, and the same each time.
QImage grain(const QSize &size);
/// Bytes of no meaning, the same each time.
QByteArray noise(qsizetype size);
/// A PNG of a header's content (IHDR), filtered rows, which are compressed, and bytes behind them in IDAT.
QByteArray pngOf(const QByteArray &header, const QByteArray &rows, const QByteArray &behind = {});
/// The header's content: 8 bits, one of PNG's types of colors.
QByteArray pngHeader(const QSize &size, char colorType, bool isInterlaced = false);
/// The colors of the four corners of an area of an image, that many pixels inside it; W is white, ? another
/// one.
QString cornersOf(const QImage &image, const QRectF &area, double inside);

QByteArray encoded(const QImage &image, const char *format, bool progressive = false);
/// A JPEG with an Exif block that holds an orientation, in either byte order.
QByteArray withOrientation(const QByteArray &jpeg, int orientation, bool bigEndian = false);
/// A JPEG with a TIFF block as its Exif block.
QByteArray withExif(const QByteArray &jpeg, const QByteArray &tiff);
/// A TIFF block that holds only a resolution, in pixels per inch.
QByteArray tiffWithResolution(int perInch);

/// The ICC profile of a device whose red is sRGB's green, and the other way round: what is shown by it
/// reveals whether it was applied, and applied twice it does nothing.
QByteArray swappedProfile();
QByteArray withProfile(const QByteArray &jpeg, const QByteArray &icc);

/// A red JPEG of 16 x 16 pixels in CMYK, inverted as photo programs store it.
QByteArray redCmykJpeg();

/// A JPEG whose headers are whole and whose pixels no decoder here reads: they have 12 bits per color.
QByteArray undecodableJpeg();

void store(const QString &path, const QByteArray &content);
QByteArray load(const QString &path);

/// While it lives, the process has no more rights than any user, even in a test that root runs.
class OrdinaryRights
{
public:
    OrdinaryRights();
    ~OrdinaryRights();
};

/// While it lives, the process gets no more memory than it has and that many bytes.
class MemoryLimit
{
public:
    explicit MemoryLimit(quint64 bytes);
    ~MemoryLimit();

private:
    quint64 before_ = 0;
};

} // namespace samples
