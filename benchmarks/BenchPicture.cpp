// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchPicture.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageWriter>

QImage picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            noise = noise * 1664525 + 1013904223;
            const int grain = static_cast<int>(noise >> 28);
            line[x] = qRgb(x * 200 / size.width() + grain, y * 200 / size.height() + grain,
                           (x + y) / 16 % 200 + grain);
        }
    }
    return image;
}

QByteArray jpegOfAtMost(qsizetype bytes, const QSize &size)
{
    const QImage image = picture(size);
    QByteArray largest;
    for (int low = 40, high = 95; low <= high;) {
        const int quality = (low + high) / 2;
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        QImageWriter writer(&buffer, "jpeg");
        writer.setQuality(quality);
        if (!writer.write(image))
            break;
        const bool isTooLarge = jpeg.size() > bytes;
        (isTooLarge ? high : low) = isTooLarge ? quality - 1 : quality + 1;
        if (!isTooLarge)
            largest = jpeg;
    }
    return largest;
}
