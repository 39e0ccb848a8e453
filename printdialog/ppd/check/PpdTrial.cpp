// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdTrial.h"

#include "LocalizingCost.h"

#include <ctime>
#include <memory>
#include <span>

namespace printdialog {

namespace {

struct RecordCloser
{
    void operator()(ppd_file_t *record) const { ppdClose(record); }
};

/// Has libcups make its index of the PPD's sizes, trays and presets.
void tryJobOptions(ppd_file_t &record)
{
    cups_option_t *options = nullptr;
    int count = 0;
    for (const char *option : {"media=iso_a4_210x297mm", "sides=two-sided-long-edge", "print-quality=5",
                               "print-color-mode=monochrome", "output-bin=face-down", "finishings=4"})
        count = cupsParseOptions(option, count, &options);
    cupsMarkOptions(&record, count, options);
    cupsFreeOptions(count, options);
}

/// Resolving conflicts is by far the most expensive part, and trying it with each option is more than a user
/// ever does.
constexpr std::clock_t resolvingTime = CLOCKS_PER_SEC;

void tryToResolve(ppd_file_t &record, const char *key, const char *choice)
{
    static std::clock_t spent = 0;
    if (spent > resolvingTime)
        return;
    const std::clock_t before = std::clock();
    cups_option_t *changes = nullptr;
    int count = 0;
    cupsResolveConflicts(&record, key, choice, &count, &changes);
    cupsFreeOptions(count, changes);
    spent += std::clock() - before;
}

void tryOption(ppd_file_t &record, const ppd_option_t &option)
{
    ppdFindCustomOption(&record, option.keyword);
    ppdFindMarkedChoice(&record, option.keyword);
    if (option.num_choices == 0)
        return;
    const char *last = option.choices[option.num_choices - 1].choice;
    cups_option_t *conflicts = nullptr;
    const int count = cupsGetConflicts(&record, option.keyword, last, &conflicts);
    cupsFreeOptions(count, conflicts);
    if (count > 0)
        tryToResolve(record, option.keyword, last);
    ppdMarkOption(&record, option.keyword, last);
}

void tryGroup(ppd_file_t &record, const ppd_group_t &group)
{
    for (const ppd_option_t &option : std::span(group.options, static_cast<std::size_t>(group.num_options)))
        tryOption(record, option);
    for (const ppd_group_t &inner : std::span(group.subgroups, static_cast<std::size_t>(group.num_subgroups)))
        tryGroup(record, inner);
}

} // namespace

void tryPpd(int descriptor)
{
    ppdSetConformance(PPD_CONFORM_RELAXED);
    const std::unique_ptr<ppd_file_t, RecordCloser> record(ppdOpenFd(descriptor));
    if (!record) {
        int line = 0;
        ppdErrorString(ppdLastError(&line));
        return;
    }
    if (canBeLocalized(*record))
        ppdLocalize(record.get());
    ppdMarkDefaults(record.get());
    for (const ppd_group_t &group : std::span(record->groups, static_cast<std::size_t>(record->num_groups)))
        tryGroup(*record, group);
    ppdConflicts(record.get());
    tryJobOptions(*record);
    ppdMarkDefaults(record.get());
    ppdPageSize(record.get(), nullptr);
}

} // namespace printdialog
