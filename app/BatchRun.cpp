// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BatchRun.h"

#include "Console.h"
#include "PhotoList.h"
#include "PhotoPrinter.h"
#include "RequestedSession.h"
#include "SummaryLines.h"

namespace printdialog {

namespace {

const QString pageSizeKey = QStringLiteral("PageSize");

QMap<QString, QString> summaryOf(const SummaryEntries &entries)
{
    QMap<QString, QString> summary;
    for (const auto &[label, text] : entries)
        summary.insert(label, text);
    return summary;
}

} // namespace

BatchRun::BatchRun(const CommandLine &commandLine, Console &console)
    : commandLine_(commandLine)
    , console_(console)
{
}

int BatchRun::run()
{
    auto photos = PhotoList::open(commandLine_.photos);
    if (!photos)
        return fail(photos.failure().text);
    const auto session = openRequestedSession(commandLine_);
    if (!session)
        return fail(session.failure().text);
    const auto options = (*session)->jobOptions();
    if (!options)
        return fail(options.failure().text);

    const PpdDocument &ppd = (*session)->ppd();
    const std::optional<PageSize> page = ppd.pageSize(options->options.value(pageSizeKey));
    if (!page) {
        return fail(tr("No page size is chosen. Choose one with -o PageSize=%1 or another one of "
                       "--list-options.")
                        .arg(ppd.pageSizes().constFirst().keyword));
    }
    for (const QString &dropped : options->dropped)
        console_.complain(dropped);

    const SummaryEntries summary = (*session)->summary();
    if (commandLine_.summary)
        console_.writeLines(summaryLines(summary));
    PrintJob job;
    job.printer = (*session)->printer().name;
    job.page = {page->points, page->imageable};
    job.options = options->options;
    job.summary = summaryOf(summary);
    return printAll(*photos, **session, job);
}

int BatchRun::printAll(PhotoList &photos, const DialogSession &session, const PrintJob &job)
{
    const PrinterDescription &printer = session.printer();
    const PrintTarget target{printer.isBuiltIn ? QString() : printer.name, commandLine_.output};
    PhotoPrinter photoPrinter(target);
    QStringList done;
    const auto failAfter = [&](const QString &sentence) {
        if (done.isEmpty())
            return fail(sentence);
        return fail(tr("%1 Printed before it: %2.").arg(sentence, done.join(QLatin1String(", "))));
    };
    for (qsizetype i = 0; i < photos.size(); ++i) {
        const auto photo = photos.take(i);
        if (!photo)
            return failAfter(photo.failure().text);
        const auto printed = photoPrinter.print(*photo, job);
        if (!printed)
            return failAfter(printed.failure().text);
        console_.writeLine(printedText(*photo, target, *printed));
        done.append(photo->fileName());
    }
    return exitDone;
}

int BatchRun::fail(const QString &sentence)
{
    console_.complain(sentence);
    return exitFailed;
}

} // namespace printdialog
