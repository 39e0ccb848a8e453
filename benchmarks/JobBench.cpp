// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "BenchPicture.h"
#include "PrivateCupsd.h"
#include "ProgramCost.h"

#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
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
#endif
}
