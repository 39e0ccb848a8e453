// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchPicture.h"
#include "BenchTable.h"
#include "Benches.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <algorithm>

namespace {

constexpr int photoCount = 300;
constexpr int sheetCount = 75;
constexpr int runCount = 3;
constexpr qsizetype photoSize = 2'000'000; // bytes

/// The photo with a comment of its own, so that no two are the same.
QByteArray numbered(const QByteArray &jpeg, int number)
{
    constexpr qsizetype markerSize = 2;
    return QByteArray(jpeg).insert(markerSize, QByteArrayLiteral("\xff\xfe\0\6") +
                                                   QByteArray::number(number).rightJustified(4, '0'));
}

/// Their paths; none when the disk is full.
QStringList makePhotos(const QTemporaryDir &folder, const QByteArray &jpeg)
{
    QStringList paths;
    for (int i = 0; i < photoCount; ++i) {
        QFile file(folder.filePath(QStringLiteral("%1.jpg").arg(i, 4, 10, QLatin1Char('0'))));
        if (!file.open(QFile::WriteOnly) || file.write(numbered(jpeg, i)) < 0 || !file.flush())
            return {};
        paths += file.fileName();
    }
    return paths;
}

QStringList printing(const QStringList &photos, const QTemporaryDir &folder, const QStringList &more)
{
    return QStringList{QStringLiteral(CORVEL_PRINT_PROGRAM),
                       QStringLiteral("--batch"),
                       QStringLiteral("--overwrite"),
                       QStringLiteral("--printer"),
                       QStringLiteral("built-in"),
                       QStringLiteral("--layout"),
                       QStringLiteral("2x2"),
                       QStringLiteral("--one-pdf"),
                       QStringLiteral("ours"),
                       QStringLiteral("--output"),
                       folder.path()} +
           more + photos;
}

int pagesOf(const QString &pdf)
{
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {pdf});
    info.waitForFinished();
    const QByteArray text = info.readAllStandardOutput();
    const QByteArray label = "Pages:";
    const qsizetype begin = text.indexOf(label);
    return begin < 0 ? 0 : text.mid(begin + label.size()).trimmed().split('\n').constFirst().toInt();
}

/// What is wrong with the PDF of all sheets; empty: it has all pages, and each photo byte for byte.
QString wrongWith(const QString &pdf, const QByteArray &jpeg)
{
    if (const int pages = pagesOf(pdf); pages != sheetCount)
        return QStringLiteral("it has %1 pages").arg(pages);
    QFile file(pdf);
    const uchar *bytes = file.open(QFile::ReadOnly) ? file.map(0, file.size()) : nullptr;
    if (!bytes)
        return QStringLiteral("it cannot be read");
    const QByteArrayView content(bytes, file.size());
    qsizetype end = 0; // of the last photo: they are there in their order
    for (int i = 0; i < photoCount; ++i) {
        const QByteArray photo = numbered(jpeg, i);
        const qsizetype begin = content.indexOf(photo, end);
        if (begin < 0)
            return QStringLiteral("photo %1 is not in it").arg(i + 1);
        end = begin + photo.size();
    }
    return {};
}

/// One program after the other, such as a pipeline's steps: all of the time, and the larger memory.
bool addSteps(const QList<QStringList> &steps, ProgramCost &cost)
{
    ProgramCost each;
    for (const QStringList &step : steps) {
        if (!addRun(step, each))
            return false;
    }
    double time = 0;
    for (const double step : each.milliseconds)
        time += step;
    cost.milliseconds.push_back(time);
    cost.mebibytes.push_back(std::ranges::max(each.mebibytes));
    return true;
}

/// A PDF with a page for each photo, and CUPS's own filter that puts four of them on a sheet.
QList<QStringList> peerSteps(const QStringList &photos, const QTemporaryDir &folder)
{
    const QString img2pdf = QStandardPaths::findExecutable(QStringLiteral("img2pdf"));
    const QString filter = QStringLiteral("/usr/lib/cups/filter/pdftopdf");
    if (img2pdf.isEmpty() || !QFile::exists(filter))
        return {};
    const QString pages = folder.filePath(QStringLiteral("pages.pdf"));
    const QString command =
        QStringLiteral("PPD=%1 CONTENT_TYPE=application/pdf exec %2 1 user title 1 number-up=4 %3 >%4 2>%5")
            .arg(QStringLiteral(CORVEL_LASER_PPD), filter, pages, folder.filePath(QStringLiteral("peer.pdf")),
                 QProcess::nullDevice());
    return {QStringList{img2pdf} + photos + QStringList{QStringLiteral("-o"), pages},
            {QStringLiteral("/bin/sh"), QStringLiteral("-c"), command}};
}

} // namespace

void benchSheets()
{
    const QString what =
        QStringLiteral("%1 JPEGs of 2 MB on %2 sheets in one PDF").arg(photoCount).arg(sheetCount);
    const QTemporaryDir folder;
    const QByteArray jpeg = jpegOfAtMost(photoSize, QSize(3600, 2400));
    const QStringList photos = makePhotos(folder, jpeg);
    if (jpeg.isEmpty() || photos.isEmpty())
        return printNote(what + QStringLiteral(": not measured, they could not be made"));
    const QList<QStringList> steps = peerSteps(photos, folder);
    const QString pdf = folder.filePath(QStringLiteral("ours.pdf"));
    ProgramCost peer;
    ProgramCost checked;
    ProgramCost unchecked;
    for (int run = 0; run < runCount; ++run) {
        if (!steps.isEmpty() && !addSteps(steps, peer))
            printNote(what + QStringLiteral(": a run of img2pdf and pdftopdf FAILED"));
        for (const auto &[cost, more] : {std::pair(&checked, QStringList()),
                                         std::pair(&unchecked, QStringList{QStringLiteral("--no-check")})}) {
            QFile::remove(pdf);
            addRun(printing(photos, folder, more), *cost);
            if (const QString wrong = wrongWith(pdf, jpeg); !wrong.isEmpty())
                return printNote(what + QStringLiteral(": the PDF is WRONG, ") + wrong);
        }
    }
    if (steps.isEmpty())
        printNote(what + QStringLiteral(": img2pdf or CUPS's pdftopdf is not installed"));
    const QString peerName = QStringLiteral("img2pdf+CUPS");
    printCosts(what + QStringLiteral(", unchecked"), unchecked, {peerName, peer, 1.0, 1.0});
    printCosts(what, checked, {peerName, peer, 1.0, 1.0});
}
