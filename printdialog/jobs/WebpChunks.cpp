// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WebpChunks.h"

#include <QtCore/QtEndian>

namespace printdialog {

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

} // namespace printdialog
