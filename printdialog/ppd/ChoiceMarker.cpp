// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceMarker.h"

#include "CupsPpd.h"
#include "PlainText.h"
#include "PpdDocument.h"

#include <QtCore/QCoreApplication>

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

/// Owns the option list that libcups fills in.
class ConflictList
{
public:
    ConflictList(ppd_file_t *record, const QByteArray &key, const QByteArray &choice)
        : count_(cupsGetConflicts(record, key.constData(), choice.constData(), &options_))
    {
    }
    ~ConflictList() { cupsFreeOptions(count_, options_); }
    Q_DISABLE_COPY_MOVE(ConflictList)

    int count() const { return count_; }

private:
    cups_option_t *options_ = nullptr;
    int count_;
};

} // namespace

ChoiceMarker::ChoiceMarker(PpdDocument &document)
    : document_(document)
    , constraints_(document)
{
}

Ruling ChoiceMarker::check(const QString &key, const QString &choice) const
{
    const QString shownKey = plainText(key, mostQuoted);
    const QString shownChoice = plainText(choice, mostQuoted);
    if (!document_.hasOption(key))
        return {Verdict::UnknownOption,
                shownKey,
                shownChoice,
                Text::tr("The printer has no option \"%1\"; it has %2.").arg(shownKey, optionsList()),
                {},
                {}};
    const auto canonical = canonicalChoice(key, choice);
    if (canonical) {
        if (libcupsObjects(key, *canonical)) {
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
        if (const auto fallback = document_.defaultChoice(entry.key()))
            markUnchecked(entry.key(), *fallback);
    }
    return unmarked;
}

void ChoiceMarker::markUnchecked(const QString &key, const QString &choice)
{
    // The result is ignored: libcups returns the number of conflicts in the whole PPD, not of this choice.
    ppdMarkOption(document_.record(), key.toLatin1().constData(), choice.toLatin1().constData());
}

std::optional<QString> ChoiceMarker::canonicalChoice(const QString &key, const QString &choice) const
{
    if (document_.choice(key, choice))
        return choice;
    if (!document_.hasOption(key) || decimalText(choice) != DecimalText::Number)
        return std::nullopt;
    return numbers(key).byValue(choice);
}

QMap<QString, QString> ChoiceMarker::markedChoices() const
{
    QMap<QString, QString> marked;
    for (const QString &key : document_.options()) {
        if (const auto choice = document_.markedChoice(key))
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
    for (const PpdChoice &choice : document_.choices(key))
        keywords += choice.keyword;
    return *numbers_.insert(key, NumericChoices(keywords));
}

QString ChoiceMarker::optionsList() const
{
    QStringList keywords = document_.options().mid(0, mostOptionsListed);
    keywords.sort();
    if (document_.options().size() > mostOptionsListed)
        keywords.append(QString(QChar(0x2026)));
    return keywords.join(QStringLiteral(", "));
}

QString ChoiceMarker::allowed(const QString &key) const
{
    const QString range = numbers(key).range();
    QStringList listed;
    for (const PpdChoice &choice : document_.choices(key)) {
        if (range.isEmpty() || decimalText(choice.keyword) != DecimalText::Number)
            listed += choice.keyword;
    }
    const qsizetype more = listed.size() - mostListed;
    listed = listed.first(std::min(listed.size(), mostListed));
    if (!range.isEmpty())
        listed += range;
    const QString list = listed.join(QStringLiteral(", "));
    return more > 0 ? Text::tr("%1 and %2 more").arg(list, QString::number(more)) : list;
}

QString ChoiceMarker::optionLabel(const QString &key) const
{
    return quoted(key, document_.optionText(key));
}

QString ChoiceMarker::choiceLabel(const QString &key, const QString &choice) const
{
    const PpdChoice *known = document_.choice(key, choice);
    return quoted(choice, known ? known->text : choice);
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

bool ChoiceMarker::libcupsObjects(const QString &key, const QString &choice) const
{
    return ConflictList(document_.record(), key.toLatin1(), choice.toLatin1()).count() > 0;
}

} // namespace printdialog
