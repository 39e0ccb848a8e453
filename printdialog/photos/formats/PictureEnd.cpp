// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureEnd.h"

#include <QtCore/QtEndian>

#include <cstdlib>

namespace printdialog {
namespace {

template <class Number>
qint64 numberAt(QByteArrayView bytes, qsizetype position)
{
    return qFromLittleEndian<Number>(bytes.data() + position);
}

/// The rows of an uncompressed bitmap have a fixed length. The file length in the header is not reliable.
bool hasBmpEnd(QByteArrayView bytes)
{
    constexpr qsizetype headerSize = 34;
    constexpr qint64 uncompressed = 0;
    constexpr qint64 bitFields = 3;
    if (bytes.size() < headerSize)
        return false;
    const qint64 compression = numberAt<quint32>(bytes, 30);
    if (compression != uncompressed && compression != bitFields)
        return true;
    const qint64 width = std::abs(numberAt<qint32>(bytes, 18));
    const qint64 height = std::abs(numberAt<qint32>(bytes, 22));
    const qint64 rowSize = (width * numberAt<quint16>(bytes, 28) + 31) / 32 * 4;
    const qint64 available = bytes.size() - numberAt<quint32>(bytes, 10);
    return height == 0 || available / height >= rowSize;
}

/// The last byte before any padding is the trailer.
bool hasGifEnd(QByteArrayView bytes)
{
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    return bytes.endsWith(';');
}

bool hasWebpEnd(QByteArrayView bytes)
{
    constexpr qsizetype headerSize = 8;
    return bytes.size() >= headerSize && bytes.size() - headerSize >= numberAt<quint32>(bytes, 4);
}

/// The file is a sequence of boxes, each with its length. A length of 0 extends to the end of the file.
bool hasBoxesEnd(QByteArrayView bytes)
{
    constexpr qsizetype headerSize = 8;
    constexpr qsizetype largeHeaderSize = 16;
    while (!bytes.isEmpty()) {
        if (bytes.size() < headerSize)
            return false;
        quint64 size = qFromBigEndian<quint32>(bytes.data());
        if (size == 1 && bytes.size() >= largeHeaderSize)
            size = qFromBigEndian<quint64>(bytes.data() + headerSize);
        if (size == 0)
            return true;
        if (size < quint64(headerSize) || size > quint64(bytes.size()))
            return false;
        bytes = bytes.sliced(static_cast<qsizetype>(size));
    }
    return true;
}

} // namespace

bool hasPictureEnd(QByteArrayView format, QByteArrayView bytes)
{
    if (format == QByteArrayView("bmp"))
        return hasBmpEnd(bytes);
    if (format == QByteArrayView("gif"))
        return hasGifEnd(bytes);
    if (format == QByteArrayView("heif") || format == QByteArrayView("avif"))
        return hasBoxesEnd(bytes);
    return format != QByteArrayView("webp") || hasWebpEnd(bytes);
}

} // namespace printdialog
