// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine_p.h"

#include <algorithm>

namespace printdialog {

namespace {

UsageFailure contradictionOfWatch(const CommandLine &line)
{
    if (!line.watch && (line.printed || line.existing))
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr("%1 is for --watch.")
                              .arg(line.printed ? QLatin1String("--printed") : QLatin1String("--existing")));
    if (line.watch && !line.photos.isEmpty())
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr(
                              "--watch prints the photos of its folder, and \"%1\" is named, too. Leave one "
                              "of them out.")
                              .arg(line.photos.constFirst()));
    return std::nullopt;
}

/// The requested tasks, as they are written on the command line.
QStringList tasksOf(const CommandLine &line)
{
    QStringList tasks;
    if (line.batch)
        tasks.append(QStringLiteral("--batch"));
    if (line.watch)
        tasks.append(QStringLiteral("--watch"));
    if (line.listPrinters)
        tasks.append(QStringLiteral("--list-printers"));
    if (line.listOptions)
        tasks.append(QStringLiteral("--list-options"));
    if (line.screenshot)
        tasks.append(QStringLiteral("--screenshot"));
    if (line.preview)
        tasks.append(QStringLiteral("--preview"));
    if (line.dryRun && !line.batch)
        tasks.append(QStringLiteral("--dry-run"));
    if (line.summary && !line.batch && !line.dryRun)
        tasks.append(QStringLiteral("--summary"));
    return tasks;
}

} // namespace

UsageFailure commandLineContradiction(const CommandLine &line)
{
    if (line.ppd && line.printer && !line.asksForBuiltInPrinter()) {
        return usageFault(
            UsageFault::Combination,
            CommandLineText::tr("--ppd is for the built-in printer, and --printer names the queue \"%1\".")
                .arg(line.printer->id()));
    }
    if (auto found = contradictionOfWatch(line))
        return found;
    const QStringList tasks = tasksOf(line);
    if (tasks.size() > 1) {
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr("%1 and %2 exclude each other.").arg(tasks.at(0), tasks.at(1)));
    }
    if (line.batch && line.photos.isEmpty())
        return usageFault(UsageFault::Missing, CommandLineText::tr("--batch needs a file to print."));
    if (line.dryRun && line.photos.isEmpty())
        return usageFault(UsageFault::Missing, CommandLineText::tr("--dry-run needs a file."));
    if (line.preview && line.photos.isEmpty())
        return usageFault(UsageFault::Missing, CommandLineText::tr("--preview needs a file."));
    const qsizetype lists = std::ranges::count_if(line.photos, PrintList::isListName);
    if (lists > 0 && (line.photos.size() > 1 || line.style != RequestedStyle() || line.pages != PageChoice()))
        return usageFault(
            UsageFault::Combination,
            CommandLineText::tr(
                "A print list says itself which files are printed and how. Give it without other files, and "
                "without %1.")
                .arg(QLatin1String(
                    "--scaling, --crop, --size, --scale, --border, --layout, --caption, --pages, "
                    "--page-set, --reverse")));
    if (line.photos.count(QLatin1String("-")) > 1)
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr("\"-\" reads one file from the standard input. Give it once."));
    if (line.json && !line.dryRun &&
        (line.batch || line.watch || line.screenshot || line.preview || tasks.isEmpty())) {
        return usageFault(
            UsageFault::Combination,
            CommandLineText::tr("--json is for --list-printers, --list-options, --summary and --dry-run."));
    }
    if (line.overwrite && !line.batch && !line.dryRun && !line.preview)
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr("--overwrite is for --batch, --dry-run and --preview."));
    if (line.onePdf && !line.batch && !line.dryRun)
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr("--one-pdf is for --batch and --dry-run."));
    if (line.wait && !line.batch)
        return usageFault(UsageFault::Combination, CommandLineText::tr("--wait is for --batch."));
    if (line.preset && !line.printer && !line.runsWithoutWindow() && !line.screenshot)
        return usageFault(UsageFault::Missing,
                          CommandLineText::tr(
                              "--preset needs --printer where a window opens: it opens with the printer used "
                              "last, which may have no such preset."));
    if (!line.checks && !line.batch && !line.dryRun)
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr("--no-check is for --batch and --dry-run."));
    return std::nullopt;
}

} // namespace printdialog
