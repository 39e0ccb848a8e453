// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceMarker.h"

#include "CustomChoice.h"
#include "OptionSource.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <algorithm>

namespace printdialog {

namespace {

constexpr qsizetype mostListed = 12;
constexpr qsizetype mostOptionsListed = 20;
constexpr qsizetype mostQuoted = 60; // characters of a requested text

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ChoiceMarker)
};

QString quoted(const QString &keyword, const QString &text)
{
    return text == keyword ? Text::tr("\"%1\"").arg(keyword) : Text::tr("\"%1\" (%2)").arg(keyword, text);
}

} // namespace

ChoiceMarker::ChoiceMarker(OptionSource &source)
    : source_(source)
    , constraints_(source)
{
}

QString ChoiceMarker::customAllowed(const OptionSource &source, const QString &key)
{
    const auto range = key == source.pageSizeKey() ? source.customPageRange() : std::nullopt;
    if (range) {
        const bool isMetric = QLocale().measurementSystem() == QLocale::MetricSystem;
        return Text::tr("Custom.WIDTHxHEIGHT%1 (from %2 to %3)")
            .arg(isMetric ? QStringLiteral("mm") : QStringLiteral("in"), pageSizeText(range->smallest),
                 pageSizeText(range->largest));
    }
    const QList<CustomParameter> parameters = source.customParameters(key);
    if (parameters.isEmpty())
        return {};
    if (parameters.size() == 1)
        return Text::tr("Custom.VALUE (%1)").arg(allowedText(parameters.constFirst()));
    QStringList each;
    for (const CustomParameter &parameter : parameters)
        each += Text::tr("%1=VALUE (%2)").arg(parameter.name, allowedText(parameter));
    return u'{' + each.join(u' ') + u'}';
}

Ruling ChoiceMarker::check(const QString &key, const QString &choice) const
{
    const QString shownKey = plainText(key, mostQuoted);
    const bool hidesChoice = isCustomChoice(choice) && isSecret(source_.customParameters(key));
    const QString shownChoice = hidesChoice ? QStringLiteral("Custom") : plainText(choice, mostQuoted);
    if (!source_.hasOption(key))
        return {Verdict::UnknownOption,
                shownKey,
                shownChoice,
                Text::tr("The printer has no option \"%1\"; it has %2.").arg(shownKey, optionsList()),
                {},
                {}};
    const auto canonical = canonicalChoice(key, choice);
    if (canonical) {
        if (source_.mayConflict(key, *canonical)) {
            if (const auto others = constraints_.against(key, *canonical); !others.isEmpty())
                return conflict({key, *canonical}, others);
        }
        return {Verdict::Accepted, key, *canonical, {}, {}, {}};
    }
    if (decimalText(choice) == DecimalText::Beginning && !numbers(key).isEmpty())
        return {Verdict::Incomplete,
                key,
                shownChoice,
                Text::tr("\"%1\" is only the beginning of a number; allowed for the option %2 are %3.")
                    .arg(shownChoice, optionLabel(key), allowed(key)),
                {},
                {}};
    return {Verdict::UnknownChoice,
            key,
            shownChoice,
            Text::tr("The option %1 has no choice \"%2\"; allowed are %3.")
                .arg(optionLabel(key), shownChoice, allowed(key)),
            {},
            {}};
}

Ruling ChoiceMarker::mark(const QString &key, const QString &choice)
{
    Ruling ruling = check(key, choice);
    if (ruling.verdict == Verdict::Accepted)
        markUnchecked(key, ruling.choice);
    return ruling;
}

QList<Ruling> ChoiceMarker::markTogether(const QMap<QString, QString> &choices)
{
    QList<Ruling> unmarked;
    for (auto entry = choices.cbegin(); entry != choices.cend(); ++entry) {
        if (const auto canonical = canonicalChoice(entry.key(), entry.value())) {
            markUnchecked(entry.key(), *canonical);
            continue;
        }
        unmarked.append(check(entry.key(), entry.value()));
        if (const auto fallback = source_.defaultChoice(entry.key()))
            markUnchecked(entry.key(), *fallback);
    }
    return unmarked;
}

void ChoiceMarker::markUnchecked(const QString &key, const QString &choice)
{
    source_.mark(key, choice);
}

std::optional<QString> ChoiceMarker::canonicalChoice(const QString &key, const QString &choice) const
{
    if (source_.choice(key, choice))
        return choice;
    if (!source_.hasOption(key))
        return std::nullopt;
    if (choice.contains(u',') && source_.kind(key) == OptionKind::PickMany)
        return manyOf(key, choice);
    if (isCustomChoice(choice))
        return customOf(key, choice);
    return decimalText(choice) == DecimalText::Number ? numbers(key).byValue(choice) : std::nullopt;
}

/// In the source's order, whatever the order that they are asked for in.
std::optional<QString> ChoiceMarker::manyOf(const QString &key, const QString &keywords) const
{
    const QStringList wanted = keywords.split(u',');
    QStringList found;
    const QList<Choice> choices = source_.choices(key);
    for (const Choice &choice : choices) {
        if (wanted.contains(choice.keyword))
            found += choice.keyword;
    }
    const bool hasAll =
        std::ranges::all_of(wanted, [&found](const QString &keyword) { return found.contains(keyword); });
    return hasAll ? std::optional(found.join(u',')) : std::nullopt;
}

std::optional<QString> ChoiceMarker::customOf(const QString &key, const QString &choice) const
{
    if (key == source_.pageSizeKey()) {
        const auto size = source_.pageSize(choice);
        return size ? std::optional(size->keyword) : std::nullopt;
    }
    const QList<CustomParameter> parameters = source_.customParameters(key);
    if (parameters.isEmpty())
        return std::nullopt;
    if (isSecret(parameters))
        return choice == QLatin1String("Custom") ? std::optional(choice) : std::nullopt;
    auto values = customValues(parameters, choice);
    if (!values)
        return std::nullopt;
    for (const CustomParameter &parameter : parameters) {
        const auto value = customValue(parameter, values->value(parameter.name));
        if (!value)
            return std::nullopt;
        values->insert(parameter.name, *value);
    }
    return customChoice(parameters, *values);
}

QMap<QString, QString> ChoiceMarker::markedChoices() const
{
    QMap<QString, QString> marked;
    for (const QString &key : source_.options()) {
        if (const auto choice = source_.markedChoice(key))
            marked.insert(key, *choice);
    }
    return marked;
}

std::optional<Ruling> ChoiceMarker::firstConflict(const QStringList &keys) const
{
    const auto broken = constraints_.broken();
    if (broken.isEmpty())
        return std::nullopt;
    QList<OptionChoice> together = broken.constFirst();
    for (const QString &key : keys) {
        const auto named = std::ranges::find(together, key, &OptionChoice::option);
        if (named == together.end())
            continue;
        std::rotate(together.begin(), named, named + 1);
        break;
    }
    return conflict(together.constFirst(), together.sliced(1));
}

const NumericChoices &ChoiceMarker::numbers(const QString &key) const
{
    const auto known = numbers_.constFind(key);
    if (known != numbers_.cend())
        return *known;
    QStringList keywords;
    for (const Choice &choice : source_.choices(key))
        keywords += choice.keyword;
    return *numbers_.insert(key, NumericChoices(keywords));
}

QString ChoiceMarker::optionsList() const
{
    QStringList keywords = source_.options().mid(0, mostOptionsListed);
    keywords.sort();
    if (source_.options().size() > mostOptionsListed)
        keywords.append(QString(QChar(0x2026)));
    return keywords.join(QStringLiteral(", "));
}

QString ChoiceMarker::allowed(const QString &key) const
{
    const QString range = numbers(key).range();
    QStringList listed;
    for (const Choice &choice : source_.choices(key)) {
        if (range.isEmpty() || decimalText(choice.keyword) != DecimalText::Number)
            listed += choice.keyword;
    }
    const qsizetype more = listed.size() - mostListed;
    listed = listed.first(std::min(listed.size(), mostListed));
    if (!range.isEmpty())
        listed += range;
    if (const QString custom = customAllowed(source_, key); !custom.isEmpty())
        listed += custom;
    const QString list = listed.join(QStringLiteral(", "));
    return more > 0 ? Text::tr("%1 and %2 more").arg(list, QString::number(more)) : list;
}

QString ChoiceMarker::optionLabel(const QString &key) const
{
    return quoted(key, source_.optionText(key));
}

QString ChoiceMarker::choiceLabel(const QString &key, const QString &choice) const
{
    return quoted(choice, choiceText(source_, {key, choice}));
}

Ruling ChoiceMarker::conflict(const OptionChoice &choice, const QList<OptionChoice> &others) const
{
    QString conditions;
    for (const OptionChoice &other : others) {
        const QString condition =
            Text::tr("%1 is %2").arg(optionLabel(other.option), choiceLabel(other.option, other.choice));
        conditions = conditions.isEmpty() ? condition : Text::tr("%1 and %2").arg(conditions, condition);
    }
    const OptionChoice first = others.value(0);
    return {Verdict::Conflict,
            choice.option,
            choice.choice,
            Text::tr("%1 cannot be %2 while %3.")
                .arg(optionLabel(choice.option), choiceLabel(choice.option, choice.choice), conditions),
            first.option,
            first.choice,
            others};
}

} // namespace printdialog
