// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchPicture.h"
#include "BenchTable.h"
#include "Benches.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <cstdio> // jpeglib.h needs it

#include <jpeglib.h>

namespace {

struct Peer
{
    const char *name;
    QStringList command;
    ProgramCost cost = {};
};

QList<Peer> peers(const QString &photo, const QString &pdf)
{
    QList<Peer> peers;
    const QString img2pdf = QStandardPaths::findExecutable(QStringLiteral("img2pdf"));
    if (!img2pdf.isEmpty())
        peers.append({"img2pdf", {img2pdf, photo, QStringLiteral("-o"), pdf}});
    const QString convert =
        QStandardPaths::findExecutable(QStringLiteral("convert"), {QStringLiteral("/usr/bin")});
    if (!convert.isEmpty())
        peers.append({"ImageMagick", {convert, photo, pdf}});
    return peers;
}

QStringList printing(const QString &photo, const QTemporaryDir &folder)
{
    return {QStringLiteral(CORVEL_PRINT_PROGRAM),
            QStringLiteral("--batch"),
            QStringLiteral("--overwrite"), // the same files in each run
            QStringLiteral("--printer"),
            QStringLiteral("built-in"),
            QStringLiteral("--output"),
            folder.path(),
            photo};
}

void benchPhoto(const QString &name, const QString &photo, const QTemporaryDir &folder, bool hasPeers)
{
    const QString pdf = folder.filePath(QStringLiteral("peer.pdf"));
    const QStringList command = printing(photo, folder) + QStringList{QStringLiteral("--no-check")};
    const QString written = folder.filePath(QFileInfo(photo).completeBaseName() + QLatin1String(".pdf"));
    ProgramCost ours;
    QList<Peer> others = hasPeers ? peers(photo, pdf) : QList<Peer>();
    ProgramCost warmUp;
    // Debian's ImageMagick may not write PDFs, for one.
    others.removeIf([&](const Peer &peer) {
        const bool fails = !addRun(peer.command, warmUp);
        if (fails)
            printNote(QStringLiteral("%1: not measured beside %2, which fails here")
                          .arg(name, QLatin1String(peer.name)));
        return fails;
    });
    for (int run = -1; run < benchRuns; ++run) {
        QFile::remove(written);
        if (!addRun(command, run < 0 ? warmUp : ours) || !QFile::exists(written)) {
            printNote(QStringLiteral("%1: not measured, corvel-print does not print it").arg(name));
            return;
        }
        for (Peer &peer : others) {
            if (run >= 0)
                addRun(peer.command, peer.cost);
        }
    }
    const QString what = QStringLiteral("%1 to PDF and ticket, a whole process").arg(name);
    if (others.isEmpty())
        printCosts(what, ours, {});
    for (const Peer &peer : std::as_const(others))
        printCosts(what, ours, {QLatin1String(peer.name), peer.cost, 1.0, 1.0});
    constexpr double megabyte = 1e6;
    printRow({QStringLiteral("%1: size of the PDF").arg(name),
              static_cast<double>(QFileInfo(written).size()) / megabyte,
              QStringLiteral("the photo"),
              static_cast<double>(QFileInfo(photo).size()) / megabyte,
              1.1,
              {},
              QStringLiteral("MB")});
}

/// As cheaply as libjpeg decodes all of a picture: its planes as they are stored.
void decode(const QByteArray &jpeg)
{
    jpeg_decompress_struct decoder = {};
    jpeg_error_mgr errors = {};
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_mem_src(&decoder, reinterpret_cast<const unsigned char *>(jpeg.constData()),
                 static_cast<unsigned long>(jpeg.size()));
    jpeg_read_header(&decoder, TRUE);
    decoder.out_color_space = decoder.jpeg_color_space;
    decoder.do_fancy_upsampling = FALSE;
    decoder.dct_method = JDCT_IFAST;
    jpeg_start_decompress(&decoder);
    std::vector<JSAMPLE> row(std::size_t(decoder.output_width) *
                             static_cast<std::size_t>(decoder.output_components));
    JSAMPROW rows = row.data();
    while (decoder.output_scanline < decoder.output_height)
        jpeg_read_scanlines(&decoder, &rows, 1);
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
}

/// What it costs to look for damage, beside the writing. Of small photos the process is all of the time.
void benchCheck(const QString &name, const QString &photo, const QTemporaryDir &folder, bool hasAim)
{
    QFile file(photo);
    if (!file.open(QFile::ReadOnly))
        return;
    const QByteArray content = file.readAll();
    ProgramCost checked;
    ProgramCost warmUp;
    std::vector<double> decoding;
    for (int run = -1; run < benchRuns; ++run) {
        const double time = millisecondsOf([&] { decode(content); });
        if (!addRun(printing(photo, folder), run < 0 ? warmUp : checked))
            return printNote(QStringLiteral("%1: not checked").arg(name));
        if (run >= 0)
            decoding.push_back(time);
    }
    constexpr double largestRatio = 1.3;
    printRow({QStringLiteral("%1 to PDF and ticket, checked for damage, a whole process").arg(name),
              median(checked.milliseconds),
              QStringLiteral("libjpeg's decoding"),
              median(decoding),
              hasAim ? std::optional(largestRatio) : std::nullopt,
              {}});
}

} // namespace

void benchPdf()
{
    const QTemporaryDir folder;
    const struct
    {
        const char *name;
        QSize size;
    } photos[] = {{"2-megapixel", QSize(1733, 1155)},
                  {"24-megapixel", QSize(6000, 4000)},
                  {"100-megapixel", QSize(12000, 8333)}};
    for (const auto &[name, size] : photos) {
        const QString path = folder.filePath(QStringLiteral("photo.jpg"));
        picture(size).save(path, "JPEG", 90);
        benchPhoto(QStringLiteral("%1 JPEG").arg(QLatin1String(name)), path, folder, true);
        benchCheck(QStringLiteral("%1 JPEG").arg(QLatin1String(name)), path, folder, size.width() >= 6000);
    }
    // The peers take minutes over such a PNG, or print it lossily.
    const QString path = folder.filePath(QStringLiteral("flat.png"));
    picture(QSize(6000, 4000)).save(path, "PNG");
    benchPhoto(QStringLiteral("24-megapixel PNG"), path, folder, false);
}
