// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Constraints.h"

#include "CustomChoice.h"

#include <QtCore/QSet>

#include <algorithm>

namespace printdialog {

namespace {

bool same(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool isPageOption(const QString &option)
{
    return same(option, QStringLiteral("PageSize")) || same(option, QStringLiteral("PageRegion"));
}

bool isOff(const QString &choice)
{
    return same(choice, QStringLiteral("None")) || same(choice, QStringLiteral("Off")) ||
           same(choice, QStringLiteral("False"));
}

} // namespace

Constraints::Constraints(const OptionSource &source)
    : source_(source)
{
    for (const QString &option : source.options())
        keywordOf_.insert(option.toLower(), option);
    const QList<OptionGroup> groups = source.groups();
    for (const OptionGroup &group : groups) {
        if (group.isInstallable)
            equipment_ += QSet<QString>(group.options.cbegin(), group.options.cend());
    }
    const QList<ConstraintTerms> all = source.constraints();
    for (const ConstraintTerms &constraint : all)
        add(constraint);
}

void Constraints::add(ConstraintTerms constraint)
{
    if (constraint.isEmpty())
        return;
    // Skip a constraint of an option with itself: it means nothing to people.
    const auto ofFirst = [&](const Term &term) {
        const QString &first = constraint.constFirst().option;
        return same(term.option, first) || (isPageOption(term.option) && isPageOption(first));
    };
    if (std::ranges::all_of(std::as_const(constraint), ofFirst))
        return;
    for (Term &term : constraint) {
        const auto keyword = keywordOf_.constFind(term.option.toLower());
        if (keyword == keywordOf_.cend())
            return; // for an option that the printer does not have: never broken
        term.option = *keyword;
    }
    const qsizetype index = constraints_.size();
    QSet<QString> filed;
    for (const Term &term : std::as_const(constraint)) {
        const QStringList names = isPageOption(term.option)
                                      ? QStringList{QStringLiteral("pagesize"), QStringLiteral("pageregion")}
                                      : QStringList{term.option.toLower()};
        for (const QString &name : names) {
            if (!filed.contains(name))
                on_[name] += index;
            filed.insert(name);
        }
    }
    constraints_ += std::move(constraint);
}

std::optional<OptionChoice> Constraints::present(const QString &option, const Supposed &supposed) const
{
    if (const auto entry = supposed.constFind(option); entry != supposed.cend())
        return OptionChoice{option, *entry};
    if (const auto marked = source_.markedChoice(option))
        return OptionChoice{option, *marked};
    return std::nullopt;
}

bool Constraints::isMetBy(const Term &term, const QString &choice) const
{
    const auto isMet = [&term](const QString &keyword) {
        return term.choice.isEmpty() ? !isOff(keyword) : same(keyword, term.choice);
    };
    if (isCustomChoice(choice))
        return isMet(QStringLiteral("Custom"));
    if (!choice.contains(u',') || source_.kind(term.option) != OptionKind::PickMany)
        return isMet(choice);
    const QStringList keywords = choice.split(u',');
    return std::ranges::any_of(keywords, isMet);
}

std::optional<OptionChoice> Constraints::met(const Term &term, const OptionChoice &asked,
                                             const Supposed &supposed) const
{
    std::optional<OptionChoice> choice;
    if (!term.choice.isEmpty() && isPageOption(term.option)) {
        if (isPageOption(asked.option))
            choice = asked;
        for (const QString &option : {QStringLiteral("PageSize"), QStringLiteral("PageRegion")}) {
            if (!choice)
                choice = present(option, supposed);
        }
    } else if (same(term.option, asked.option)) {
        choice = asked;
    } else {
        choice = present(term.option, supposed);
    }
    if (!choice || !isMetBy({choice->option, term.choice}, choice->choice))
        return std::nullopt;
    return choice;
}

QList<OptionChoice> Constraints::against(const QString &option, const QString &choice,
                                         const Supposed &supposed) const
{
    const OptionChoice asked{option, choice};
    for (const qsizetype index : on_.value(option.toLower())) {
        QList<OptionChoice> others;
        const bool isBroken = std::ranges::all_of(constraints_.at(index), [&](const Term &term) {
            const auto choiceOfTerm = met(term, asked, supposed);
            if (choiceOfTerm && *choiceOfTerm != asked)
                others += *choiceOfTerm;
            return choiceOfTerm.has_value();
        });
        if (isBroken && !others.isEmpty())
            return others;
    }
    return {};
}

QList<OptionChoice> Constraints::againstEquipment(const QString &option, const QString &choice) const
{
    const OptionChoice asked{option, choice};
    if (equipment_.isEmpty() || equipment_.contains(option))
        return {};
    for (const qsizetype index : on_.value(option.toLower())) {
        QList<OptionChoice> others;
        const bool isBroken = std::ranges::all_of(constraints_.at(index), [&](const Term &term) {
            const auto choiceOfTerm = met(term, asked, {});
            const bool isAsked = choiceOfTerm && *choiceOfTerm == asked;
            if (choiceOfTerm && !isAsked)
                others += *choiceOfTerm;
            return choiceOfTerm && (isAsked || equipment_.contains(choiceOfTerm->option));
        });
        if (isBroken && !others.isEmpty())
            return others;
    }
    return {};
}

QList<QList<OptionChoice>> Constraints::broken(const Supposed &supposed) const
{
    QList<QList<OptionChoice>> all;
    QSet<QString> seen; // most constraints are given in both directions
    for (const ConstraintTerms &constraint : constraints_) {
        QList<OptionChoice> together;
        QStringList names;
        const bool isBroken = std::ranges::all_of(constraint, [&](const Term &term) {
            const auto choice = met(term, {}, supposed);
            if (choice) {
                together += *choice;
                names += choice->option + u'\n' + choice->choice;
            }
            return choice.has_value();
        });
        if (!isBroken)
            continue;
        names.sort();
        const QString name = names.join(u'\n');
        if (!seen.contains(name))
            all += together;
        seen.insert(name);
    }
    return all;
}

} // namespace printdialog
