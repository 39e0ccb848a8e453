// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppNames.h"
#include "IppOptions.h"

#include <algorithm>

namespace printdialog {

namespace {

constexpr qsizetype mostCombinations = 20'000;

/// Each of `all` joined with each of `more`.
QList<ConstraintTerms> combined(const QList<ConstraintTerms> &all, const QList<ConstraintTerms> &more)
{
    QList<ConstraintTerms> combinations;
    combinations.reserve(all.size() * more.size());
    for (const ConstraintTerms &terms : all) {
        for (const ConstraintTerms &others : more)
            combinations += terms + others;
    }
    return combinations;
}

QList<ConstraintTerms> anyOf(const QString &key, const QStringList &keywords)
{
    QList<ConstraintTerms> terms;
    for (const QString &keyword : keywords)
        terms.append(ConstraintTerms{{key, keyword}});
    return terms;
}

bool isDescribed(const QString &member)
{
    return member == ippnames::mediaSize || member == ippnames::mediaSizeName ||
           member.endsWith(QLatin1String("-margin"));
}

} // namespace

/// The listed choices among the values; a range stands for all in it.
QStringList IppOptions::keywordsOf(const QString &key, const QList<IppValue> &values) const
{
    using Kind = IppValue::Kind;
    QStringList keywords;
    const auto option = options_.constFind(key);
    for (const Choice &choice : option->choices) {
        const QList<IppValue> own = valuesOf(key, choice.keyword);
        const bool isNamed = std::ranges::any_of(values, [&own](const IppValue &value) {
            const IppValue &each = own.constFirst();
            if (value.kind == Kind::Range)
                return each.isNumber() && each.number >= value.number && each.number <= value.upper;
            if (value.isNumber() && each.isNumber())
                return value.number == each.number;
            if (value.kind == Kind::Resolution && each.kind == Kind::Resolution)
                return value.number == each.number && value.upper == each.upper;
            return value.isText() && each.isText() && value.text == each.text;
        });
        if (isNamed)
            keywords += choice.keyword;
    }
    return keywords;
}

QList<ConstraintTerms> IppOptions::mediaAlternatives(const IppAttributes &mediaCol) const
{
    QList<ConstraintTerms> all = {ConstraintTerms()};
    QStringList members = mediaCol.names();
    members.sort();
    bool describesSize = false;
    for (const QString &member : std::as_const(members)) {
        if (isDescribed(member)) {
            describesSize = true;
            continue;
        }
        if (!hasOption(member))
            return {}; // about what cannot be chosen here
        all = combined(all, anyOf(member, keywordsOf(member, mediaCol.values(member))));
    }
    return describesSize ? combined(all, anyOf(ippnames::media, media_.keywordsOf(mediaCol))) : all;
}

std::optional<QList<ConstraintTerms>> IppOptions::alternatives(const QString &name,
                                                               const QList<IppValue> &values) const
{
    if (name == ippnames::mediaCol) {
        QList<ConstraintTerms> all;
        for (const IppValue &value : values) {
            if (value.members)
                all += mediaAlternatives(*value.members);
        }
        return all;
    }
    if (name == ippnames::finishingsCol) {
        QList<ConstraintTerms> all;
        const QString &key = ippnames::finishingTemplate;
        for (const IppValue &value : values) {
            if (value.members && hasOption(key))
                all += anyOf(key, keywordsOf(key, value.members->values(key)));
        }
        return all;
    }
    if (name == ippnames::media) {
        QStringList keywords;
        for (const IppValue &value : values)
            keywords += media_.keywordsOf(value.text);
        return anyOf(ippnames::media, keywords);
    }
    if (!hasOption(name))
        return std::nullopt;
    return anyOf(name, keywordsOf(name, values));
}

void IppOptions::readConstraints(const IppAttributes &printer, LeftOut &leftOut)
{
    const QList<IppValue> rules = printer.values(QStringLiteral("job-constraints-supported"));
    for (const IppValue &rule : rules) {
        if (!rule.members)
            continue;
        QList<ConstraintTerms> all = {ConstraintTerms()};
        QStringList names = rule.members->names();
        names.sort();
        names.removeAll(ippnames::resolverName);
        for (const QString &name : std::as_const(names)) {
            const auto terms = alternatives(name, rule.members->values(name));
            const bool isTooMuch =
                terms && all.size() * terms->size() > mostCombinations - constraints_.size();
            leftOut.combinations += isTooMuch ? 1 : 0;
            // One with a term that is never met is never broken.
            all = terms && !isTooMuch ? combined(all, *terms) : QList<ConstraintTerms>();
        }
        const QString resolver = rule.members->text(ippnames::resolverName).value_or(QString());
        for (const ConstraintTerms &terms : std::as_const(all)) {
            for (const OptionChoice &term : terms) {
                QList<qsizetype> &filed = constraintsOn_[term.option];
                if (filed.isEmpty() || filed.constLast() != constraints_.size())
                    filed += constraints_.size();
            }
            constraints_ += terms;
            resolverOf_ += resolver;
        }
    }
    const QList<IppValue> resolvers = printer.values(QStringLiteral("job-resolvers-supported"));
    for (const IppValue &resolver : resolvers) {
        const QString name =
            resolver.members ? resolver.members->text(ippnames::resolverName).value_or(QString()) : QString();
        if (name.isEmpty() || resolvers_.contains(name))
            continue;
        QStringList members = resolver.members->names();
        members.sort();
        members.removeAll(ippnames::resolverName);
        QList<OptionChoice> changes;
        for (const QString &member : std::as_const(members)) {
            // Of several values, the first is the one that the printer prefers.
            const auto terms = alternatives(member, resolver.members->values(member).mid(0, 1));
            if (terms && !terms->isEmpty())
                changes += terms->constFirst();
        }
        resolvers_.insert(name, changes);
    }
}

bool IppOptions::mayConflict(const QString &key, const QString & /*choice*/) const
{
    return constraintsOn_.contains(key);
}

bool IppOptions::isMarked(const OptionChoice &term) const
{
    const QString marked = markedChoice(term.option).value_or(QString());
    return kind(term.option) == OptionKind::PickMany ? marked.split(u',').contains(term.choice)
                                                     : marked == term.choice;
}

QList<OptionChoice> IppOptions::resolution(const QString &key, const QString &choice) const
{
    QList<OptionChoice> changes;
    const QStringList asked = kind(key) == OptionKind::PickMany ? choice.split(u',') : QStringList(choice);
    for (const qsizetype index : constraintsOn_.value(key)) {
        const bool isBroken = std::ranges::all_of(constraints_.at(index), [&](const OptionChoice &term) {
            return term.option == key ? asked.contains(term.choice) : isMarked(term);
        });
        if (!isBroken)
            continue;
        changes += resolvers_.value(resolverOf_.at(index));
    }
    return changes;
}

} // namespace printdialog
