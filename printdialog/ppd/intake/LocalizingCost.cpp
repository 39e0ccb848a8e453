// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LocalizingCost.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <unordered_map>

namespace printdialog {

bool canBeLocalized(const ppd_file_t &record)
{
    constexpr std::int64_t mostComparisons = 10'000'000; // about 0.1 s
    std::unordered_map<std::string_view, std::int64_t> translations;
    for (const ppd_attr_t *attribute : std::span(record.attrs, static_cast<std::size_t>(record.num_attrs))) {
        const std::string_view name(attribute->name);
        if (const auto dot = name.find('.'); dot != std::string_view::npos && dot > 0)
            ++translations[name.substr(dot + 1)];
    }
    std::int64_t cost = 0;
    for (const ppd_group_t &group : std::span(record.groups, static_cast<std::size_t>(record.num_groups))) {
        for (const ppd_option_t &option :
             std::span(group.options, static_cast<std::size_t>(group.num_options))) {
            const auto found = translations.find(option.keyword);
            cost += found == translations.end() ? 0 : option.num_choices * found->second;
        }
    }
    return cost <= mostComparisons;
}

} // namespace printdialog
