// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngChunks.h"

#include <QtCore/QtEndian>

#include <array>

namespace printdialog {
namespace {

constexpr std::array<quint32, 256> checksumTable = [] {
    std::array<quint32, 256> table{};
    for (quint32 byte = 0; byte < table.size(); ++byte) {
        quint32 remainder = byte;
        for (int bit = 0; bit < 8; ++bit)
            remainder = remainder & 1 ? 0xedb88320 ^ (remainder >> 1) : remainder >> 1;
        table[byte] = remainder;
    }
    return table;
}();

/// The CRC-32 of ISO 3309, as in PNG and zlib.
quint32 checksum(QByteArrayView bytes)
{
    quint32 sum = 0xffffffff;
    for (const char byte : bytes)
        sum = checksumTable[(sum ^ static_cast<quint8>(byte)) & 0xff] ^ (sum >> 8);
    return ~sum;
}

} // namespace

PngChunks checkPngChunks(QByteArrayView bytes)
{
    constexpr qsizetype signatureSize = 8;
    constexpr qsizetype frameSize = 12; // length, type and checksum
    qsizetype position = signatureSize;
    while (bytes.size() - position >= frameSize) {
        const auto length = qsizetype(qFromBigEndian<quint32>(bytes.data() + position));
        if (length > bytes.size() - position - frameSize)
            return PngChunks::Truncated;
        const QByteArrayView typeAndData = bytes.sliced(position + 4, 4 + length);
        if (qFromBigEndian<quint32>(typeAndData.data() + typeAndData.size()) != checksum(typeAndData))
            return PngChunks::Broken;
        if (typeAndData.first(4) == QByteArrayView("IEND"))
            return PngChunks::Whole;
        position += frameSize + length;
    }
    return PngChunks::Truncated;
}

} // namespace printdialog
