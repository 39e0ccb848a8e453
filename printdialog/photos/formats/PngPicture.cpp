// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngPicture.h"

#include "PngPixels.h"

#include <cstddef>

namespace printdialog {

QImage decodedPng(QByteArrayView png, const PngHeader &header, const QSize &bound, QString &error)
{
    const QSize size = header.size;
    const bool isScaled =
        !bound.isEmpty() && bound.width() <= size.width() && bound.height() <= size.height();
    const QSize whole = isScaled ? bound : size;
    return decodedPngPart(png, header, {whole, QRect(QPoint(0, 0), whole)}, error);
}

QImage decodedPngPart(QByteArrayView png, const PngHeader &header, const ScaledPart &wanted, QString &error,
                      const std::atomic<bool> *isGivenUp)
{
    AreaScaler scaler(header.size, wanted, header.decodedComponents);
    if (scaler.image().isNull())
        return {};
    const QRect needed = scaler.needed();
    PngPixels pixels(png);
    for (int y = 0; y <= needed.bottom() && !(isGivenUp && *isGivenUp); ++y) {
        const unsigned char *row = pixels.nextRow();
        if (!row) {
            error = pixels.error();
            return {};
        }
        if (y >= needed.top())
            scaler.addRow(row + std::ptrdiff_t(needed.left()) * header.decodedComponents);
    }
    return isGivenUp && *isGivenUp ? QImage() : scaler.image();
}

} // namespace printdialog
