// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceExplanation.h"

#include "OptionSource.h"

namespace printdialog {

ChoiceExplanation::ChoiceExplanation(const OptionSource &source)
    : source_(source)
{
}

QString ChoiceExplanation::refusal(const Ruling &ruling) const
{
    if (ruling.verdict != Verdict::Conflict)
        return ruling.text;
    QString conditions;
    for (const OptionChoice &other : ruling.others) {
        const QString condition =
            tr("\"%1\" is \"%2\"", "a condition").arg(optionText(other.option), choiceText(source_, other));
        conditions =
            conditions.isEmpty() ? condition : tr("%1 and %2", "two conditions").arg(conditions, condition);
    }
    return tr("\"%1\" cannot be \"%2\" while %3.", "options, choices, and conditions")
        .arg(optionText(ruling.key), choiceText(source_, {ruling.key, ruling.choice}), conditions);
}

QString ChoiceExplanation::change(const OptionChoice &change) const
{
    return tr("\"%1\" to \"%2\"", "change an option to a choice")
        .arg(optionText(change.option), choiceText(source_, change));
}

QString ChoiceExplanation::changes(const QList<OptionChoice> &changes) const
{
    QStringList all;
    for (const OptionChoice &each : changes)
        all += change(each);
    return all.join(tr(", ", "between the parts of a list"));
}

QString ChoiceExplanation::optionText(const QString &key) const
{
    const QString text = source_.optionText(key);
    return text.isEmpty() ? key : text;
}

} // namespace printdialog
