// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "BuiltInPrinter.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

using namespace printdialog;

void benchPdf()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.jpg"));
    QImage image(6000, 4000, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb((x * 7 + y * 3) % 256, (x ^ y) % 256, (y * 5) % 256);
    }
    image.save(path, "JPEG", 90);

    PrintJob job;
    job.page = {QSizeF(288, 432), QRectF(0, 0, 288, 432)};
    std::vector<double> times;
    for (int run = 0; run < 11; ++run) {
        times.push_back(millisecondsOf([&] {
            const auto photo = Photo::open(path);
            if (!photo || !BuiltInPrinter::print(*photo, job, folder.path()))
                qFatal("the photo was not printed");
        }));
    }
    printRow({QStringLiteral("24-megapixel JPEG to PDF and ticket, synced to disk"),
              median(times),
              {},
              {},
              100.0});
}
