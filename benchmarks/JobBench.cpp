// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "BenchPicture.h"
#include "JpegDamage.h"
#include "PrivateCupsd.h"
#include "ProgramCost.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <thread>
#endif

#ifdef CORVEL_BENCH_HAS_CUPSD
namespace {

using testing_support::PrivateCupsd;

constexpr int batchSize = 100;
constexpr int batchRuns = 3;

/// Milliseconds of a program's run; its output is discarded.
double timeOf(const QStringList &command)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setProgram(command.constFirst());
    process.setArguments(command.sliced(1));
    const double time = millisecondsOf([&] {
        process.start();
        process.waitForFinished(-1);
    });
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(command.constFirst()), process.readAllStandardError().constData());
    return time;
}

/// The photo under as many names.
QStringList copiesOf(const QString &photo)
{
    QStringList names;
    for (int i = 0; i < batchSize; ++i) {
        names.append(QStringLiteral("%1-%2.jpg").arg(photo).arg(i));
        QFile::link(photo, names.constLast());
    }
    return names;
}

QStringList batch(const QStringList &arguments, const QStringList &photos)
{
    return QStringList{QStringLiteral(CORVEL_PRINT_PROGRAM), QStringLiteral("--batch")} + arguments + photos;
}

void benchBatches(PrivateCupsd &server, const QString &lp, const QTemporaryDir &folder)
{
    const QString large = folder.filePath(QStringLiteral("batch.jpg"));
    picture(QSize(6000, 4000)).save(large, "JPEG", 90);
    const QStringList photos = copiesOf(large);
    const QString queue = QStringLiteral("photo");
    server.run(QStringLiteral("cupsdisable"), {queue}); // what is printed takes no time from what is sent
    const QStringList toQueue = {QStringLiteral("--wait"), QStringLiteral("0"), QStringLiteral("--printer"),
                                 queue};
    std::vector<double> ours;
    std::vector<double> peer;
    for (int run = 0; run < batchRuns; ++run) {
        ours.push_back(timeOf(batch(toQueue + QStringList{QStringLiteral("--no-check")}, photos)));
        server.run(QStringLiteral("cancel"), {QStringLiteral("-a"), QStringLiteral("-x"), queue});
        double all = 0.0;
        for (const QString &photo : photos)
            all += timeOf({lp, QStringLiteral("-d"), queue, photo});
        peer.push_back(all);
        server.run(QStringLiteral("cancel"), {QStringLiteral("-a"), QStringLiteral("-x"), queue});
    }
    const QString many = QStringLiteral("%1 24-megapixel JPEGs to a stopped queue").arg(batchSize);
    printRow({many + QStringLiteral(", unchecked"),
              median(ours),
              QStringLiteral("lp for each"),
              median(peer),
              0.8,
              {}});

    QFile file(large);
    if (!file.open(QFile::ReadOnly))
        return;
    const QByteArray content = file.readAll();
    std::vector<double> checked;
    std::vector<double> checks;
    for (int run = 0; run < batchRuns; ++run) {
        checked.push_back(timeOf(batch(toQueue, photos)));
        server.run(QStringLiteral("cancel"), {QStringLiteral("-a"), QStringLiteral("-x"), queue});
        checks.push_back(millisecondsOf([&content] {
            const auto half = [&content] {
                for (int i = 0; i < batchSize / 2; ++i)
                    (void)printdialog::jpegDamage(content);
            };
            std::thread other(half);
            half();
            other.join();
        }));
    }
    printRow({many + QStringLiteral(", checked"),
              median(checked),
              QStringLiteral("2-core check"),
              median(checks),
              1.2,
              {}});
}

/// To memory, and for comparison to a disk, which takes time to store each photo's files.
void benchSmallBatch(const QTemporaryDir &folder)
{
    const QString small = folder.filePath(QStringLiteral("small.jpg"));
    picture(QSize(1200, 800)).save(small, "JPEG", 90);
    const QStringList photos = copiesOf(small);
    const QTemporaryDir memory(QStringLiteral("/dev/shm/corvel-bench-XXXXXX"));
    const struct
    {
        const char *name;
        QString output;
        QStringList more;
        std::optional<double> most; ///< ms for each photo
    } ways[] = {{"into memory, unchecked", memory.path(), {QStringLiteral("--no-check")}, 2.0},
                {"into memory", memory.path(), {}, 2.0},
                {"on a disk", folder.filePath(QStringLiteral("prints")), {}, {}}};
    for (const auto &[name, output, more, most] : ways) {
        const QStringList command =
            batch(more + QStringList{QStringLiteral("--overwrite"), QStringLiteral("--printer"),
                                     QStringLiteral("built-in"), QStringLiteral("--output"), output},
                  photos);
        std::vector<double> each;
        for (int run = 0; run < benchRuns; ++run)
            each.push_back(timeOf(command) / batchSize);
        printRow({QStringLiteral("JPEG of %1 kB to the built-in printer, %2: each of %3")
                      .arg(QFileInfo(small).size() / 1000)
                      .arg(QLatin1String(name))
                      .arg(batchSize),
                  median(each),
                  {},
                  {},
                  {},
                  most});
    }
}

} // namespace
#endif

void benchJobs()
{
#ifdef CORVEL_BENCH_HAS_CUPSD
    testing_support::PrivateCupsd server;
    QFile ppd(QStringLiteral(CORVEL_BENCH_PPD_DIR "/Corvel9031.ppd"));
    const QString lp = QStandardPaths::findExecutable(QStringLiteral("lp"));
    if (!ppd.open(QIODevice::ReadOnly) || lp.isEmpty() || !server.start().isEmpty() ||
        !server.addQueue(QStringLiteral("photo"), ppd.readAll())) {
        printNote(QStringLiteral("printing to a queue: not measured, there is no private cupsd"));
        return;
    }
    const QTemporaryDir folder;
    const struct
    {
        const char *name;
        QSize size;
    } shapes[] = {{"nothing to place", QSize(4000, 6000)}, {"placed, as a PDF", QSize(6000, 4000)}};
    for (const auto &[name, size] : shapes) {
        const QString photo = folder.filePath(QStringLiteral("large.jpg"));
        picture(size).save(photo, "JPEG", 90);
        const QStringList options = {QStringLiteral("-o"), QStringLiteral("PageSize=4x6.Fullbleed"),
                                     QStringLiteral("-o"), QStringLiteral("Red=12")};
        ProgramCost ours;
        ProgramCost peer;
        for (int run = 0; run < benchRuns + 1; ++run) { // Neither waits for the printer.
            addRun(QStringList{QStringLiteral(CORVEL_PRINT_PROGRAM), QStringLiteral("--batch"),
                               QStringLiteral("--wait"), QStringLiteral("0"), QStringLiteral("--printer"),
                               QStringLiteral("photo"), photo} +
                       options,
                   ours);
            addRun(QStringList{lp, QStringLiteral("-d"), QStringLiteral("photo")} + options +
                       QStringList{photo},
                   peer);
        }
        printCosts(QStringLiteral("24-megapixel JPEG to a queue, %1").arg(QLatin1String(name)), ours,
                   {QStringLiteral("lp"), peer, 1.5, {}});
    }
    benchSmallBatch(folder);
    benchBatches(server, lp, folder);
#endif
}
