// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "BuiltInPrinter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace printdialog;

namespace {

/// What a program has taken, from its start to its end.
struct Cost
{
    double milliseconds = 0.0;
    double mebibytes = 0.0; ///< of memory, at most
};

/// Runs a program to its end; the cost is 0 when it has failed.
Cost costOf(const QStringList &command)
{
    std::vector<QByteArray> bytes;
    std::vector<char *> argv;
    for (const QString &argument : command)
        bytes.push_back(QFile::encodeName(argument));
    for (QByteArray &argument : bytes)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    rusage usage = {};
    int status = -1;
    Cost cost;
    cost.milliseconds = millisecondsOf([&] {
        pid_t child = 0;
        if (posix_spawn(&child, argv.front(), nullptr, nullptr, argv.data(), environ) == 0)
            wait4(child, &status, 0, &usage);
    });
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return {};
    cost.mebibytes = static_cast<double>(usage.ru_maxrss) / 1024;
    return cost;
}

Cost medianCostOf(const QStringList &command, int runs)
{
    std::vector<double> times;
    std::vector<double> memory;
    for (int run = 0; run < runs; ++run) {
        const Cost cost = costOf(command);
        times.push_back(cost.milliseconds);
        memory.push_back(cost.mebibytes);
    }
    return {median(times), median(memory)};
}

/// Noise over gradients, which compresses about as badly as photos do.
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

void printPhoto(const QString &path, const QString &folder)
{
    PrintJob job;
    job.page = {QSizeF(288, 432), QRectF(0, 0, 288, 432)};
    const auto photo = Photo::open(path);
    if (!photo || !BuiltInPrinter::print(*photo, job, folder))
        qFatal("the photo was not printed");
}

void benchPhoto(const QString &name, const QImage &image, const char *format, const QTemporaryDir &folder,
                std::optional<double> largest)
{
    const QString path = folder.filePath(QStringLiteral("photo.") + QLatin1String(format));
    if (!image.save(path, format, 90))
        qFatal("the photo was not stored");
    const int runs = 5;
    std::vector<double> times;
    for (int run = 0; run < runs; ++run)
        times.push_back(millisecondsOf([&] { printPhoto(path, folder.path()); }));
    printRow(
        {QStringLiteral("%1 to PDF and ticket, synced to disk").arg(name), median(times), {}, {}, largest});

    const Cost ours = medianCostOf({QCoreApplication::applicationFilePath(), QStringLiteral("--child"),
                                    QStringLiteral("pdf"), path, folder.path()},
                                   runs);
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("img2pdf"));
    const QString peerPdf = folder.filePath(QStringLiteral("peer.pdf"));
    const Cost peer =
        tool.isEmpty() ? Cost() : medianCostOf({tool, path, QStringLiteral("-o"), peerPdf}, runs);
    const auto row = [&](const QString &what, double own, double other, const QString &unit) {
        BenchRow line{QStringLiteral("%1, %2 (peer: img2pdf)").arg(name, what), own, {}, {}, {}};
        if (other > 0.0) {
            line.peer = other;
            line.largestRatio = 1.0;
        }
        line.unit = unit;
        printRow(line);
    };
    row(QStringLiteral("a whole process"), ours.milliseconds, peer.milliseconds, QStringLiteral("ms"));
    row(QStringLiteral("peak memory"), ours.mebibytes, peer.mebibytes, QStringLiteral("MiB"));
    constexpr double megabyte = 1e6;
    BenchRow size{QStringLiteral("%1, size of the PDF (peer: the photo)").arg(name),
                  static_cast<double>(QFileInfo(folder.filePath(QStringLiteral("photo.pdf"))).size()) /
                      megabyte,
                  static_cast<double>(QFileInfo(path).size()) / megabyte,
                  1.1,
                  {}};
    size.unit = QStringLiteral("MB");
    printRow(size);
}

} // namespace

int runPdfChild(const QString &path, const QString &folder)
{
    printPhoto(path, folder);
    return 0;
}

void benchPdf()
{
    const QTemporaryDir folder;
    const struct
    {
        const char *name;
        QSize size;
        std::optional<double> largest;
    } photos[] = {{"2-megapixel", QSize(1733, 1155), {}},
                  {"24-megapixel", QSize(6000, 4000), 100.0},
                  {"100-megapixel", QSize(12000, 8333), {}}};
    for (const auto &[name, size, largest] : photos) {
        const QImage image = picture(size);
        benchPhoto(QStringLiteral("%1 JPEG").arg(QLatin1String(name)), image, "jpg", folder, largest);
        if (size.width() == 6000) {
            benchPhoto(QStringLiteral("%1 PNG").arg(QLatin1String(name)), image, "png", folder, {});
            benchPhoto(QStringLiteral("%1 PNG with alpha").arg(QLatin1String(name)),
                       image.convertToFormat(QImage::Format_ARGB32), "png", folder, {});
        }
    }
}
