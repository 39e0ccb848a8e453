// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdConstraints.h"

#include "CupsPpd.h"
#include "PpdDocument.h"

#include <QtCore/QSet>

#include <algorithm>
#include <span>

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

QString withoutAsterisk(const QString &keyword)
{
    return keyword.startsWith(u'*') ? keyword.sliced(1) : keyword;
}

} // namespace

PpdConstraints::PpdConstraints(const PpdDocument &document)
    : document_(document)
{
    for (const QString &option : document.options())
        keywordOf_.insert(option.toLower(), option);
    ppd_file_t *record = document.record();
    const ppd_attr_t *attribute = ppdFindAttr(record, "cupsUIConstraints", nullptr);
    if (!attribute) {
        loadPairs(*record);
        return;
    }
    for (; attribute; attribute = ppdFindNextAttr(record, "cupsUIConstraints", nullptr)) {
        Constraint constraint;
        const QStringList words =
            QString::fromLatin1(attribute->value).simplified().split(u' ', Qt::SkipEmptyParts);
        for (const QString &word : words) {
            if (word.startsWith(u'*'))
                constraint += Term{word.sliced(1), {}};
            else if (!constraint.isEmpty() && constraint.constLast().choice.isEmpty())
                constraint.last().choice = word;
        }
        add(constraint);
    }
}

void PpdConstraints::loadPairs(const ppd_file_s &record)
{
    for (const ppd_const_t &pair : std::span(record.consts, static_cast<size_t>(record.num_consts))) {
        add({{withoutAsterisk(QString::fromLatin1(pair.option1)), QString::fromLatin1(pair.choice1)},
             {withoutAsterisk(QString::fromLatin1(pair.option2)), QString::fromLatin1(pair.choice2)}});
    }
}

void PpdConstraints::add(Constraint constraint)
{
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
            return; // for an option that the PPD does not have: never broken
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

std::optional<OptionChoice> PpdConstraints::present(const QString &option, const Supposed &supposed) const
{
    if (const auto entry = supposed.constFind(option); entry != supposed.cend())
        return OptionChoice{option, *entry};
    if (const auto marked = document_.markedChoice(option))
        return OptionChoice{option, *marked};
    return std::nullopt;
}

std::optional<OptionChoice> PpdConstraints::met(const Term &term, const OptionChoice &asked,
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
    if (!choice || (term.choice.isEmpty() ? isOff(choice->choice) : !same(choice->choice, term.choice)))
        return std::nullopt;
    return choice;
}

QList<OptionChoice> PpdConstraints::against(const QString &option, const QString &choice,
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

QList<QList<OptionChoice>> PpdConstraints::broken(const Supposed &supposed) const
{
    QList<QList<OptionChoice>> all;
    QSet<QString> seen; // most constraints are given in both directions
    for (const Constraint &constraint : constraints_) {
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
