// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChosenOptions.h"

#include "OptionSource.h"

#include <algorithm>
#include <utility>

namespace printdialog {

ChosenOptions::ChosenOptions(OptionSource &source, PanelMode mode)
    : source_(source)
    , mode_(mode)
    , marker_(source)
    , choices_(marker_.markedChoices())
{
}

std::optional<QString> ChosenOptions::choice(const QString &key) const
{
    const auto entry = ticket_.options().constFind(key);
    return entry != ticket_.options().cend() ? std::optional(*entry) : source_.markedChoice(key);
}

QStringList ChosenOptions::chosenKeys() const
{
    QStringList keys = chosenAt_.keys();
    std::ranges::sort(keys, std::greater(), [this](const QString &key) { return chosenAt_.value(key); });
    return keys;
}

Ruling ChosenOptions::weigh(const QString &key, const QString &choice) const
{
    Ruling ruling = marker_.check(key, choice);
    // In settings mode, conflicts are checked when the job is made: only then does the ticket have all
    // choices.
    if (mode_ == PanelMode::Settings && ruling.verdict == Verdict::Conflict)
        ruling.verdict = Verdict::Accepted;
    return ruling;
}

Ruling ChosenOptions::choose(const QString &key, const QString &choice, QWidget *sender)
{
    Ruling ruling = mode_ == PanelMode::Constraint ? marker_.mark(key, choice) : weigh(key, choice);
    if (!ruling.letsThrough()) {
        Q_EMIT refused(ruling, sender);
        return ruling;
    }
    noteChosen(key);
    if (ruling.verdict == Verdict::Incomplete)
        return ruling;
    if (mode_ == PanelMode::Settings) {
        ticket_.options().insert(key, ruling.choice);
        update(key);
    } else {
        updateCoupled(key);
    }
    return ruling;
}

void ChosenOptions::chooseTogether(const QMap<QString, QString> &choices)
{
    QStringList keys;
    for (auto entry = choices.cbegin(); entry != choices.cend(); ++entry) {
        if (marker_.canonicalChoice(entry.key(), *entry) != *entry || choices_.value(entry.key()) == *entry)
            continue;
        if (mode_ == PanelMode::Settings)
            ticket_.options().insert(entry.key(), *entry);
        else
            marker_.markUnchecked(entry.key(), *entry);
        noteChosen(entry.key());
        keys += entry.key();
    }
    for (const QString &key : std::as_const(keys))
        updateCoupled(key);
}

void ChosenOptions::adopt(const QStringList &keys)
{
    for (const QString &key : keys) {
        const auto choice = canonical(key);
        if (!choice || choices_.value(key) == *choice)
            continue;
        noteChosen(key);
        update(key);
    }
}

void ChosenOptions::keep(const QStringList &keys)
{
    for (const QString &key : keys)
        noteChosen(key);
}

void ChosenOptions::include(const QStringList &keys)
{
    for (const QString &key : keys) {
        if (const auto choice = canonical(key))
            choices_.insert(key, *choice);
    }
}

void ChosenOptions::forget(const QStringList &keys)
{
    for (const QString &key : keys)
        chosenAt_.remove(key);
}

ChoicePlan ChosenOptions::plan(const QMap<QString, QString> &wanted, const QMap<QString, QString> &base) const
{
    return marker_.plan(wanted, base);
}

QList<OptionChoice> ChosenOptions::changesThatAllow(const Ruling &refusal) const
{
    return marker_.changesThatAllow(refusal);
}

QList<Ruling> ChosenOptions::markTicket()
{
    const QList<Ruling> replaced = marker_.markTogether(ticket_.options());
    for (const Ruling &ruling : replaced) {
        if (const auto marked = source_.markedChoice(ruling.key))
            ticket_.options().insert(ruling.key, *marked);
    }
    for (const QString &key : source_.options())
        update(key);
    return replaced;
}

void ChosenOptions::noteChosen(const QString &key)
{
    chosenAt_.insert(key, ++acts_);
}

/// The choice in the PPD's spelling; nothing for one that the PPD does not have.
std::optional<QString> ChosenOptions::canonical(const QString &key) const
{
    const auto chosen = choice(key);
    return chosen ? marker_.canonicalChoice(key, *chosen) : std::nullopt;
}

void ChosenOptions::update(const QString &key)
{
    const auto known = choices_.constFind(key);
    const auto before = known == choices_.cend() ? std::nullopt : std::optional(*known);
    const auto after = canonical(key);
    if (before == after)
        return;
    if (after)
        choices_.insert(key, *after);
    else
        choices_.remove(key);
    Q_EMIT changed({key, before, after});
}

void ChosenOptions::updateCoupled(const QString &key)
{
    update(key);
    const QStringList coupled = source_.coupledOptions(key);
    for (const QString &each : coupled)
        update(each);
}

} // namespace printdialog
