// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include <algorithm>
#include <utility>

namespace printdialog {

QMap<QString, QString> DialogSession::choices()
{
    // In settings mode the panels keep their choices to themselves until they are saved.
    for (const pdekit::PanelPointer &panel : panels_)
        panel->saveValuesAndReturnError(nullptr);
    QMap<QString, QString> choices;
    for (const QString &key : ppd_.options()) {
        const std::optional<QString> choice = chosen(key);
        if (const auto canonical = choice ? marker_.canonicalChoice(key, *choice) : std::nullopt)
            choices.insert(key, *canonical);
    }
    return choices;
}

void DialogSession::chooseTogether(const QMap<QString, QString> &choices)
{
    const QMap<QString, QString> present = this->choices();
    for (auto entry = choices.cbegin(); entry != choices.cend(); ++entry) {
        if (ppd_.choice(entry.key(), *entry) && present.value(entry.key()) != *entry)
            together_.insert(entry.key(), *entry);
    }
    for (auto entry = together_.cbegin(); entry != together_.cend(); ++entry) {
        const Ruling offered{Verdict::Accepted, entry.key(), entry.value(), {}, {}, {}};
        if (pdekit::PrintDialogPanel *panel = panelFor(entry.key()))
            chooseThroughPanel(*panel, offered);
        else
            chooseDirectly(offered);
    }
    together_.clear();
    refreshPanels();
}

QList<Ruling> DialogSession::restoreChoices(const QMap<QString, QString> &choices, Unnamed unnamed)
{
    QMap<QString, QString> base = this->choices();
    QMap<QString, QString> made;
    if (unnamed == Unnamed::Default) {
        const QStringList keys = jobKeys();
        for (const QString &key : keys) {
            if (const auto fallback = ppd_.defaultChoice(key); fallback && !choices.contains(key))
                made.insert(key, *fallback);
        }
        base.insert(made);
    }
    const ChoicePlan plan = marker_.plan(choices, base);
    made.insert(plan.choices);
    chooseTogether(made);
    return plan.leftOut;
}

void DialogSession::finishTyping()
{
    const QStringList keys = std::exchange(begunKeys_, {});
    for (const QString &key : keys) {
        if (pdekit::PrintDialogPanel *panel = panelFor(key))
            panel->restoreValuesAndReturnError(nullptr);
    }
}

void DialogSession::replaceDropped(const QList<Ruling> &dropped)
{
    for (const Ruling &ruling : dropped) {
        const std::optional<QString> marked = ppd_.markedChoice(ruling.key);
        pdekit::PrintDialogPanel *panel = panelFor(ruling.key);
        if (!marked || !panel)
            continue;
        ticket_.options().insert(ruling.key, *marked);
        panel->PPDOptionKeyValueDidChangePpdChoice(ruling.key, marked);
        // A ticket without one of its options makes a panel take the defaults of all.
        const QStringList keys = panel->supportedPPDOptionKeys();
        if (std::ranges::all_of(keys, [this](const QString &key) { return ticket_.options().contains(key); }))
            panel->restoreValuesAndReturnError(nullptr);
    }
}

QList<OptionChoice> DialogSession::changesThatAllow(const Ruling &refusal) const
{
    return marker_.changesThatAllow(refusal);
}

void DialogSession::noteChosen(const QString &key)
{
    chosenKeys_.removeOne(key);
    chosenKeys_.prepend(key);
}

} // namespace printdialog
