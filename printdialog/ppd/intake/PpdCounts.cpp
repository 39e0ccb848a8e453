// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdCounts.h"

#include <algorithm>

namespace printdialog {

namespace {

using Limits = PpdLimits;

/// The `de` of `de.PageSize`, the `zh_TW` of `zh_TW.PageSize`; empty for other keywords.
QByteArrayView languageOf(QByteArrayView keyword)
{
    const qsizetype dot = keyword.indexOf('.');
    return dot == 2 || dot == 5 ? keyword.first(dot) : QByteArrayView();
}

} // namespace

std::optional<PpdExcess> PpdCounts::addGroup()
{
    if (++groups_ > Limits::groups)
        return PpdExcess{PpdFault::TooManyOptions, tr("groups of options"), Limits::groups};
    return std::nullopt;
}

std::optional<PpdExcess> PpdCounts::addOption()
{
    if (++options_ > Limits::options)
        return PpdExcess{PpdFault::TooManyOptions, tr("options"), Limits::options};
    return std::nullopt;
}

std::optional<PpdExcess> PpdCounts::add(const PpdLine &line, QByteArrayView option)
{
    const QByteArrayView keyword = line.mainKeyword;
    // libcups does without the line that opens PageSize.
    if (keyword == (option.isEmpty() ? "PageSize" : option))
        return addChoice(keyword);
    if (keyword == "PaperDimension" || keyword == "ImageableArea") {
        if (++sizeEntries_ > 2 * Limits::pageSizes)
            return PpdExcess{PpdFault::TooManyChoices, tr("page sizes"), Limits::pageSizes};
    } else if (keyword == "UIConstraints" || keyword == "NonUIConstraints" ||
               keyword == "cupsUIConstraints") {
        return addConstraint(line.value);
    } else if (keyword.startsWith("ParamCustom")) {
        if (++customParameters_ > Limits::customParameters)
            return PpdExcess{PpdFault::Malformed, tr("parameters of custom choices"),
                             Limits::customParameters};
    } else if (const QByteArrayView language = languageOf(keyword); !language.isEmpty()) {
        // Counted per language, since libcups keeps only one.
        if (++translations_[language] > Limits::otherEntries)
            return PpdExcess{PpdFault::Malformed, tr("translations into one language"), Limits::otherEntries};
    } else {
        return addOther();
    }
    return std::nullopt;
}

std::optional<PpdExcess> PpdCounts::addOther()
{
    if (++others_ > Limits::otherEntries)
        return PpdExcess{PpdFault::Malformed, tr("entries beside its options"), Limits::otherEntries};
    return std::nullopt;
}

std::optional<PpdExcess> PpdCounts::addChoice(QByteArrayView option)
{
    ++choicesOf_[option];
    if (++choices_ > Limits::choices)
        return PpdExcess{PpdFault::TooManyChoices, tr("choices"), Limits::choices};
    if (option == "PageSize" && ++sizes_ > Limits::pageSizes)
        return PpdExcess{PpdFault::TooManyChoices, tr("page sizes"), Limits::pageSizes};
    return std::nullopt;
}

std::optional<PpdExcess> PpdCounts::addConstraint(QByteArrayView value)
{
    constraints_ += std::max<qsizetype>(1, std::count(value.begin(), value.end(), '*') / 2);
    if (constraints_ > Limits::constraints)
        return PpdExcess{PpdFault::TooManyConstraints, tr("constraints"), Limits::constraints};
    for (qsizetype at = value.indexOf('*'); at >= 0; at = value.indexOf('*', at + 1)) {
        const QByteArrayView rest = value.sliced(at + 1);
        const auto end =
            std::find_if(rest.begin(), rest.end(), [](char byte) { return byte <= ' ' || byte == '"'; });
        ++constraintsOn_[rest.first(end - rest.begin())];
    }
    return std::nullopt;
}

qint64 PpdCounts::constraintCost() const
{
    qint64 cost = 0;
    for (auto it = constraintsOn_.cbegin(); it != constraintsOn_.cend(); ++it)
        cost += it.value() * choicesOf_.value(it.key());
    return cost;
}

} // namespace printdialog
