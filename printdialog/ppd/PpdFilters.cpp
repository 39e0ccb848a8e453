// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdFilters.h"

#include "CupsPpd.h"
#include "PpdDocument.h"

namespace printdialog {

namespace {

/// "type/subtype cost program" and, for cupsFilter2, "type/subtype type/subtype cost program".
struct Filter
{
    QByteArray source;
    QByteArray program;
};

Filter filterOf(const char *value)
{
    const QByteArrayList words = QByteArray(value).simplified().split(' ');
    return {words.value(0).toLower(), words.constLast()};
}

QList<Filter> filtersOf(ppd_file_t *record, const char *keyword)
{
    QList<Filter> filters;
    for (ppd_attr_t *attribute = ppdFindAttr(record, keyword, nullptr); attribute;
         attribute = ppdFindNextAttr(record, keyword, nullptr))
        filters.append(filterOf(attribute->value));
    return filters;
}

} // namespace

QByteArrayList typesPassedThrough(const PpdDocument &ppd)
{
    ppd_file_t *record = ppd.record();
    // The print server ignores the older keyword when the newer one is present.
    QList<Filter> filters = filtersOf(record, "cupsFilter2");
    for (int i = 0; filters.isEmpty() && i < record->num_filters; ++i)
        filters.append(filterOf(record->filters[i]));
    QByteArrayList types;
    for (const Filter &filter : filters) {
        if (filter.program == "-" && filter.source.contains('/') && !types.contains(filter.source))
            types.append(filter.source);
    }
    // Another filter for the same type may cost less, and a pre-filter always runs.
    for (const Filter &filter : filters + filtersOf(record, "cupsPreFilter")) {
        if (filter.program != "-")
            types.removeAll(filter.source);
    }
    return types;
}

} // namespace printdialog
