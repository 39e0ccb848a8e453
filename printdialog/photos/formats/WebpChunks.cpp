// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WebpChunks.h"

#include <QtCore/QtEndian>

namespace printdialog {
namespace {

QByteArray littleEndian(qsizetype number)
{
    QByteArray bytes(sizeof(quint32), '\0');
    qToLittleEndian(static_cast<quint32>(number), bytes.data());
    return bytes;
}

} // namespace

QByteArrayView webpChunk(QByteArrayView bytes, QByteArrayView name)
{
    constexpr qsizetype fileHeaderSize = 12; // RIFF, the size, WEBP
    constexpr qsizetype headerSize = 8;
    for (qsizetype position = fileHeaderSize; position + headerSize <= bytes.size();) {
        const auto size = qsizetype(qFromLittleEndian<quint32>(bytes.data() + position + 4));
        if (size > bytes.size() - position - headerSize)
            break;
        if (bytes.sliced(position, name.size()) == name)
            return bytes.sliced(position + headerSize, size);
        position += headerSize + size + size % 2;
    }
    return {};
}

QByteArray shortenedWebp(QByteArrayView bytes)
{
    constexpr qsizetype lastBytes = 64;
    for (const QByteArrayView name : {QByteArrayView("VP8 "), QByteArrayView("VP8L")}) {
        QByteArrayView pixels = webpChunk(bytes, name);
        if (pixels.size() < 4 * lastBytes)
            continue;
        pixels.chop(lastBytes);
        QByteArray content = "WEBP" + name.toByteArray() + littleEndian(pixels.size()) + pixels.toByteArray();
        content.resize(content.size() + content.size() % 2, '\0');
        return "RIFF" + littleEndian(content.size()) + content;
    }
    return {};
}

} // namespace printdialog
