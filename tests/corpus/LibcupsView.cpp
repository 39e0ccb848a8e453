// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdView.h"

#include <cups/cups.h>
#include <cups/ppd.h>
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

#include <cstdio>
#include <memory>
#include <span>
#include <strings.h>
#include <unistd.h>

namespace corpus {

namespace {

struct Closer
{
    void operator()(ppd_file_t *record) const { ppdClose(record); }
    void operator()(FILE *file) const { std::fclose(file); }
};

std::unique_ptr<ppd_file_t, Closer> recordOf(const std::string &ppd)
{
    const std::unique_ptr<FILE, Closer> file(std::tmpfile());
    if (!file || std::fwrite(ppd.data(), 1, ppd.size(), file.get()) != ppd.size() ||
        std::fflush(file.get()) != 0)
        return nullptr;
    std::rewind(file.get());
    ppdSetConformance(PPD_CONFORM_RELAXED);
    return std::unique_ptr<ppd_file_t, Closer>(ppdOpenFd(::dup(::fileno(file.get())))); // closes it
}

bool isListed(const std::vector<std::string> &choices, const char *choice)
{
    for (const std::string &each : choices) {
        if (::strcasecmp(each.c_str(), choice) == 0)
            return true;
    }
    return false;
}

bool conflicts(ppd_file_t *record, const char *option, const char *choice)
{
    cups_option_t *others = nullptr;
    const int count = cupsGetConflicts(record, option, choice, &others);
    cupsFreeOptions(count, others);
    return count > 0;
}

void addOption(PpdView &view, ppd_file_t *record, const ppd_option_t &option)
{
    if (ppdFindOption(record, option.keyword) != &option)
        return;
    OptionView found;
    // A custom page size makes libcups add the choice to PageRegion, too.
    const bool isRegion = ::strcasecmp(option.keyword, "PageRegion") == 0;
    const bool hasCustom = ppdFindCustomOption(record, isRegion ? "PageSize" : option.keyword) != nullptr;
    for (const ppd_choice_t &choice : std::span(option.choices, static_cast<size_t>(option.num_choices))) {
        if (hasCustom && ::strcasecmp(choice.choice, "Custom") == 0)
            continue;
        if (!isListed(found.choices, choice.choice))
            found.choices.emplace_back(choice.choice);
    }
    if (found.choices.empty())
        return;
    if (isListed(found.choices, option.defchoice))
        found.defaultChoice = option.defchoice;
    if (const ppd_choice_t *marked = ppdFindMarkedChoice(record, option.keyword))
        found.marked = marked->choice;
    for (const std::string &choice : found.choices) {
        if (conflicts(record, option.keyword, choice.c_str()))
            found.refused.insert(choice);
    }
    view.order.emplace_back(option.keyword);
    view.options.emplace(option.keyword, found);
}

/// Where the default page size is not one that can be printed on, marks the first that can.
void markPageSize(ppd_file_t *record)
{
    const auto isUsable = [record](const char *choice) {
        const ppd_size_t *size = ::strcasecmp(choice, "Custom") == 0 ? nullptr : ppdPageSize(record, choice);
        return size && size->width >= 1 && size->length >= 1;
    };
    const ppd_option_t *sizes = ppdFindOption(record, "PageSize");
    const ppd_choice_t *marked = ppdFindMarkedChoice(record, "PageSize");
    if (!sizes || (marked && isUsable(marked->choice)))
        return;
    for (const ppd_choice_t &choice : std::span(sizes->choices, static_cast<size_t>(sizes->num_choices))) {
        if (isUsable(choice.choice)) {
            ppdMarkOption(record, "PageSize", choice.choice);
            return;
        }
    }
}

} // namespace

Opening libcupsView(const std::string &ppd)
{
    const auto record = recordOf(ppd);
    if (!record) {
        int line = 0;
        const std::string reason = ppdErrorString(ppdLastError(&line));
        return {std::nullopt, reason + " in line " + std::to_string(line)};
    }
    ppdMarkDefaults(record.get());
    markPageSize(record.get());
    PpdView view;
    view.defaultsConflict = ppdConflicts(record.get()) > 0;
    for (const ppd_group_t &group : std::span(record->groups, static_cast<size_t>(record->num_groups))) {
        for (const ppd_option_t &option : std::span(group.options, static_cast<size_t>(group.num_options)))
            addOption(view, record.get(), option);
        for (const ppd_group_t &inner :
             std::span(group.subgroups, static_cast<size_t>(group.num_subgroups))) {
            for (const ppd_option_t &option :
                 std::span(inner.options, static_cast<size_t>(inner.num_options)))
                addOption(view, record.get(), option);
        }
    }
    return {view, {}};
}

} // namespace corpus
