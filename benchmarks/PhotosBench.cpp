// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchPicture.h"
#include "BenchTable.h"
#include "Benches.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <unistd.h>

namespace {

constexpr int photoCount = 1000;
constexpr int fileCount = 300; // the others are further names of these, to spare the disk
constexpr qsizetype photoSize = 8 << 20;

bool makePhotos(const QTemporaryDir &folder)
{
    const QByteArray jpeg = jpegOfAtMost(photoSize, QSize(6000, 4000));
    for (int i = 0; i < photoCount; ++i) {
        const QByteArray path =
            QFile::encodeName(folder.filePath(QStringLiteral("%1.jpg").arg(i, 4, 10, QLatin1Char('0'))));
        if (i >= fileCount) {
            const QByteArray earlier = QFile::encodeName(
                folder.filePath(QStringLiteral("%1.jpg").arg(i % fileCount, 4, 10, QLatin1Char('0'))));
            if (::link(earlier.constData(), path.constData()) != 0)
                return false;
            continue;
        }
        QFile file(QFile::decodeName(path));
        if (!file.open(QFile::WriteOnly) || file.write(jpeg) != jpeg.size())
            return false;
    }
    return true;
}

} // namespace

void benchPhotos()
{
    const QString what = QStringLiteral("a window with %1 photos of 8 MB: ").arg(photoCount);
    const QTemporaryDir folder;
    if (!makePhotos(folder)) {
        printNote(what + QStringLiteral("not measured, they could not be written"));
        return;
    }
    constexpr int runs = 5;
    std::vector<std::vector<double>> columns(5);
    for (int run = -1; run < runs; ++run) { // the first one warms up
        QProcess child;
        const double begin = monotonicMilliseconds();
        child.start(QStringLiteral(CORVEL_BENCH_OURS), {QStringLiteral("--photos"), folder.path()});
        child.waitForFinished(120000);
        const QByteArrayList numbers = child.readAllStandardOutput().simplified().split(' ');
        if (child.exitCode() != 0 || numbers.size() != 5) {
            printNote(what + QStringLiteral("not measured, it did not open"));
            return;
        }
        for (std::size_t i = 0; run >= 0 && i < columns.size(); ++i)
            columns[i].push_back(numbers.at(static_cast<qsizetype>(i)).toDouble() - (i < 3 ? begin : 0));
    }
    const auto print = [&](const char *part, std::size_t column, std::optional<double> largest,
                           const char *unit) {
        printRow(
            {what + QLatin1String(part), median(columns[column]), {}, {}, {}, largest, QLatin1String(unit)});
    };
    print("process start to painted", 0, std::nullopt, "ms");
    print("to the first photo, and a strip to scroll", 1, 500.0, "ms");
    print("to all of them opened", 2, std::nullopt, "ms");
    print("longest hold of the window, scrolling", 3, std::nullopt, "ms");
    print("peak memory, scrolled to the end", 4, 150.0, "MiB");
}
