// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceMarker.h"

#include "OptionSource.h"

#include <algorithm>

namespace printdialog {

namespace {

/// Where both have a choice, the one in `over` wins.
QMap<QString, QString> merged(QMap<QString, QString> choices, const QMap<QString, QString> &over)
{
    choices.insert(over);
    return choices;
}

/// libcups does not change PageSize, but it does change PageRegion.
bool isPageKey(const QString &key)
{
    return key == QLatin1String("media") || key == QLatin1String("PageSize") ||
           key == QLatin1String("PageRegion");
}

bool namesOneOf(const QList<OptionChoice> &together, const QMap<QString, QString> &choices)
{
    return std::ranges::any_of(
        together, [&](const OptionChoice &each) { return choices.value(each.option) == each.choice; });
}

} // namespace

ChoicePlan ChoiceMarker::plan(const QMap<QString, QString> &wanted, const QMap<QString, QString> &base) const
{
    ChoicePlan plan;
    QMap<QString, QString> waiting;
    for (auto entry = wanted.cbegin(); entry != wanted.cend(); ++entry) {
        if (const auto canonical = canonicalChoice(entry.key(), entry.value()))
            waiting.insert(entry.key(), *canonical);
        else
            plan.leftOut += check(entry.key(), entry.value());
    }
    const auto broken = constraints_.broken(merged(base, waiting));
    if (std::ranges::none_of(broken, [&](const auto &together) { return namesOneOf(together, waiting); })) {
        plan.choices = waiting;
        return plan;
    }
    // One choice may block another until a third is made, so repeat as long as that helps.
    QMap<QString, QString> made = base;
    for (qsizetype before = -1; before != waiting.size();) {
        before = waiting.size();
        for (auto entry = waiting.begin(); entry != waiting.end();) {
            if (!constraints_.against(entry.key(), entry.value(), made).isEmpty()) {
                ++entry;
                continue;
            }
            made.insert(entry.key(), entry.value());
            plan.choices.insert(entry.key(), entry.value());
            entry = waiting.erase(entry);
        }
    }
    for (auto entry = waiting.cbegin(); entry != waiting.cend(); ++entry)
        plan.leftOut +=
            conflict({entry.key(), entry.value()}, constraints_.against(entry.key(), entry.value(), made));
    return plan;
}

QList<OptionChoice> ChoiceMarker::changesThatAllow(const Ruling &refusal) const
{
    if (refusal.verdict != Verdict::Conflict)
        return {};
    QMap<QString, QString> together = {{refusal.key, refusal.choice}};
    QList<OptionChoice> changes;
    bool isUsable = true;
    const QList<OptionChoice> proposed = source_.resolution(refusal.key, refusal.choice);
    for (const auto &[key, choice] : proposed) {
        if (key == refusal.key || source_.markedChoice(key) == choice)
            continue;
        isUsable = isUsable && source_.choice(key, choice) && !isPageKey(key) && !isInstallable(source_, key);
        together.insert(key, choice);
        changes += OptionChoice{key, choice};
    }
    // Verify the result, since the offer has to work: libcups may return after giving up, and a PPD's own
    // resolver may be wrong.
    const auto broken = constraints_.broken(together);
    if (!isUsable ||
        std::ranges::any_of(broken, [&](const auto &each) { return namesOneOf(each, together); }))
        return {};
    return changes;
}

} // namespace printdialog
