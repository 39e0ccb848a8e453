// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngChunks.h"

#include <QtCore/QtEndian>

#include <zlib.h>

namespace printdialog {
namespace {

quint32 checksum(QByteArrayView bytes)
{
    const auto *data = reinterpret_cast<const Bytef *>(bytes.data());
    return static_cast<quint32>(crc32_z(0, data, static_cast<z_size_t>(bytes.size())));
}

} // namespace

PngChunks checkPngChunks(QByteArrayView bytes)
{
    constexpr qsizetype signatureSize = 8;
    constexpr qsizetype frameSize = 12; // length, type and checksum
    qsizetype position = signatureSize;
    PngChunks found = PngChunks::Whole;
    while (bytes.size() - position >= frameSize) {
        const auto length = qsizetype(qFromBigEndian<quint32>(bytes.data() + position));
        if (length > bytes.size() - position - frameSize)
            return PngChunks::Truncated;
        const QByteArrayView typeAndData = bytes.sliced(position + 4, 4 + length);
        if (qFromBigEndian<quint32>(typeAndData.data() + typeAndData.size()) != checksum(typeAndData)) {
            if (typeAndData.first(4) != QByteArrayView("IDAT"))
                return PngChunks::Broken;
            found = PngChunks::DamagedPixels;
        }
        if (typeAndData.first(4) == QByteArrayView("IEND"))
            return found;
        position += frameSize + length;
    }
    return PngChunks::Truncated;
}

} // namespace printdialog
